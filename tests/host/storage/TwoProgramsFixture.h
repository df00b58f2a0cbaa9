// Programs of their own on one drawing, as far as files can tell.
#pragma once

#include "platform/win/CodePage.h"
#include "tests/host/storage/StorageFixture.h"

namespace Tessaly {

struct Program {
    std::unique_ptr<IDbStorage> storage = MakeGeoPackageStorage();
    std::unique_ptr<AcDbDatabase> drawing = std::make_unique<AcDbDatabase>();
};

class TwoProgramsTest : public StorageTest {
protected:
    void SetUp() override {
        AcDbDatabase first;
        for (int i = 0; i < 20; ++i) {
            m_ids.push_back(AddNode(first, i, i, "old"));
        }
        Edit<AcDbDictionary>(first, first.dictionary(L"ORVZ_SYSTEMS"),
                             [](AcDbDictionary& systems) { systems.setAt(L"LASTID", L"0"); });
        SaveNew(first, "plan.gpkg");
    }
    Program OpenPlan() {
        Program program;
        const auto result = program.storage->Read(*program.drawing, Path(), {});
        EXPECT_TRUE(result.ok()) << WideToUtf8(result.reason.View());
        return program;
    }
    CString Path() const { return m_folder.Wide("plan.gpkg"); }
    AcDbStorageResult SaveOf(Program& program) {
        return program.storage->Save(*program.drawing, Path(), {});
    }
    AcDbStorageResult TakeOver(Program& program, AcDbComparison& comparison) {
        return program.storage->TakeOver(*program.drawing, {}, comparison);
    }
    void Rename(Program& program, AcDbObjectId id, const char* name) {
        Edit<AcDbPoint>(*program.drawing, id,
                        [&](AcDbPoint& point) { point.setAttribute(Name("NAME"), name); });
    }
    /// A system with two nodes and a section between them, as an import makes it.
    void Import(Program& program, const wchar_t* name) {
        AcDbDatabase& drawing = *program.drawing;
        int number = 0;
        Edit<AcDbDictionary>(drawing, drawing.dictionary(L"ORVZ_SYSTEMS"),
                             [&](AcDbDictionary& systems) {
                                 number = std::stoi(systems.getAt(L"LASTID")->Str()) + 1;
                                 CString text;
                                 text.Format(L"%d", number);
                                 systems.setAt(L"LASTID", text);
                                 systems.setAt(L"ACTIVE", text);
                                 systems.setAt(L"COUNTER." + text + L".NODE", L"2");
                             });
        CString dictionary;
        dictionary.Format(L"ORVZ_SYSTEM_%d", number);
        Edit<AcDbDictionary>(drawing, drawing.dictionary(dictionary),
                             [&](AcDbDictionary& records) { records.setAt(L"NAME", name); });
        const std::string utf8 = WideToUtf8(name);
        std::vector<AcDbObjectId> ends;
        for (int i = 0; i < 2; ++i) {
            ends.push_back(AddNode(drawing, i, number, (utf8 + std::to_string(i)).c_str()));
            Edit<AcDbPoint>(drawing, ends.back(), [&](AcDbPoint& point) {
                point.setLayer(drawing.layer(name));
                point.setAttribute(Name("SYSTEMID"), number);
                point.setAttribute(Name("SYSTEMS"), ("1 " + std::to_string(number)).c_str());
            });
        }
        Edit<AcDbPolyline>(drawing, AddLine(drawing, {{0, 0}, {1, 1}}), [&](AcDbPolyline& line) {
            line.setAttribute(Name("NAME"), (utf8 + " line").c_str());
            line.setAttribute(Name("SYSTEMID"), number);
            line.setAttribute(Name("STARTNODE"), std::int64_t{ends[0].number()});
            line.setAttribute(Name("ENDNODE"), std::int64_t{ends[1].number()});
        });
    }
    /// The name behind a reference of the one entity of a name.
    static std::string Referred(const AcDbDatabase& drawing, const std::string& entity,
                                const char* attribute) {
        std::string found = "no such entity";
        drawing.forEachEntity([&](const AcDbEntity& candidate) {
            if (candidate.attribute(Name("NAME")).asText() == entity) {
                const auto id = candidate.attribute(Name(attribute)).asInteger().value_or(0);
                const auto* pTarget = dynamic_cast<const AcDbEntity*>(
                    drawing.peek(AcDbObjectId(static_cast<std::uint32_t>(id))));
                found = pTarget ? std::string(pTarget->attribute(Name("NAME")).asText()) : "none";
            }
        });
        return found;
    }
    static std::string SystemOf(const AcDbDatabase& drawing, const std::string& entity) {
        std::string found = "no such entity";
        drawing.forEachEntity([&](const AcDbEntity& candidate) {
            if (candidate.attribute(Name("NAME")).asText() == entity) {
                CString name;
                name.Format(L"ORVZ_SYSTEM_%d",
                            candidate.attribute(Name("SYSTEMID")).asInteger().value_or(0));
                const auto* pSystem =
                    dynamic_cast<const AcDbDictionary*>(drawing.peek(drawing.findDictionary(name)));
                found = pSystem ? WideToUtf8(pSystem->getAt(L"NAME")->View()) : "no system";
            }
        });
        return found;
    }

    std::vector<AcDbObjectId> m_ids;
};

} // namespace Tessaly
