#include "siblings/giscore/topology/TopologyConfiguration.h"

#include <algorithm>

#include "platform/win/File.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/SupportFile.h"
#include "siblings/giscore/utility/WholeNumber.h"

namespace Orvane {

namespace {

/// Default configuration; the same as share/support/TopologyConfiguration.ini.
constexpr std::string_view kDelivered = R"(
[line]
name=900200
entity.1=900220
entity.2=900221
function.1=900240
function.2=900241
function.3=900242
function.4=900243
function.5=900244
function.6=900245
function.7=900246
function.10000=900247
[polygon]
name=900201
entity.16=900222
entity.32=900223
[point]
name=900202
entity.1=900224
[scheme]
name=900203
entity.1=900220
entity.2=900221
function.1=900250
)";

struct TopologyWord {
    const wchar_t* word;
    enmTopologyType type;
};
constexpr TopologyWord kTopologyWords[] = {
    {L"line", TopologyLine},
    {L"polygon", TopologyPolygon},
    {L"point", TopologyPoint},
    {L"scheme", TopologyScheme},
};

constexpr enmEntityType kEntityTypes[] = {EntityNode, EntitySection, EntityPolygon,
                                          EntityPolygonNode, EntityLongitudinalSection};

enmTopologyType TypeOf(const CString& word) {
    const auto hit = std::find_if(
        std::begin(kTopologyWords), std::end(kTopologyWords),
        [&](const TopologyWord& entry) { return word.CompareNoCase(entry.word) == 0; });
    return hit == std::end(kTopologyWords) ? TopologyNone : hit->type;
}

/// The number of a key such as "function.4"; nullopt for keys of another kind.
std::optional<int> NumberOfKey(const CString& key, std::wstring_view kind) {
    const int length = static_cast<int>(kind.size());
    return key.Left(length).CompareNoCase(CString(kind)) == 0 ? WholeNumber(key.Mid(length).View())
                                                              : std::nullopt;
}

} // namespace

/// Creates topologies from the sections of a file.
class TopologyReader {
public:
    TopologyReader(const wchar_t* name, const std::function<CString(int)>& message,
                   std::vector<CString>& problems)
        : m_name(name), m_message(message), m_problems(problems) {}

    std::vector<CTopology> Read(const IniFile& file) {
        std::vector<CTopology> topologies;
        for (const IniFile::Section& section : file.GetSections()) {
            const enmTopologyType type = TypeOf(section.name);
            if (type == TopologyNone) {
                Note(section.line, GisMsg::UnknownTopology, section.name);
            } else if (std::any_of(topologies.begin(), topologies.end(), [&](const CTopology& t) {
                           return t.GetTopologyType() == type;
                       })) {
                Note(section.line, GisMsg::SecondSection, section.name);
            } else {
                topologies.push_back(ReadTopology(type, section));
            }
        }
        return topologies;
    }

private:
    CTopology ReadTopology(enmTopologyType type, const IniFile::Section& section) {
        CTopology topology(type);
        topology.m_strName = section.name;
        for (const IniFile::Entry& entry : section.entries) {
            ReadEntry(topology, entry);
        }
        return topology;
    }

    void ReadEntry(CTopology& topology, const IniFile::Entry& entry) {
        if (entry.value.IsEmpty()) {
            Note(entry.line, GisMsg::HasNoValue, entry.key);
        } else if (entry.key.CompareNoCase(L"name") == 0) {
            topology.m_strName = Name(entry.value);
        } else if (entry.key.CompareNoCase(L"on") == 0) {
            ReadOn(topology, entry);
        } else if (const auto id = NumberOfKey(entry.key, L"function.")) {
            AddFunction(topology, *id, entry);
        } else if (const auto type = NumberOfKey(entry.key, L"entity.")) {
            AddEntityType(topology, static_cast<enmEntityType>(*type), entry);
        } else {
            Note(entry.line, GisMsg::UnknownKey, entry.key);
        }
    }

    void ReadOn(CTopology& topology, const IniFile::Entry& entry) {
        const std::optional<int> on = WholeNumber(entry.value.View());
        if (on && (*on == 0 || *on == 1)) {
            topology.m_bOn = *on;
        } else {
            Note(entry.line, GisMsg::NeitherZeroNorOne, entry.value);
        }
    }

    void AddFunction(CTopology& topology, int id, const IniFile::Entry& entry) {
        if (id <= 0) {
            Note(entry.line, GisMsg::FunctionNumber);
        } else if (topology.GetTopologyFunctionById(id)) {
            Note(entry.line, GisMsg::SecondFunction, id);
        } else {
            topology.m_functions.emplace_back(id, Name(entry.value));
        }
    }

    void AddEntityType(CTopology& topology, enmEntityType type, const IniFile::Entry& entry) {
        if (std::find(std::begin(kEntityTypes), std::end(kEntityTypes), type) ==
            std::end(kEntityTypes)) {
            Note(entry.line, GisMsg::NoSuchEntityType, type);
        } else if (topology.GetEntityType(type)) {
            Note(entry.line, GisMsg::SecondEntityType, type);
        } else {
            topology.m_entityTypes.emplace_back(type, Name(entry.value));
        }
    }

    CString Name(const CString& value) const {
        const std::optional<int> id = WholeNumber(value.View());
        return id ? m_message(*id) : value;
    }

    template <class... Args>
    void Note(int line, GisMsg reason, const Args&... args) {
        m_problems.push_back(MessageText(reason, m_name, line, args...));
    }

    const wchar_t* m_name;
    const std::function<CString(int)>& m_message;
    std::vector<CString>& m_problems;
};

CTopologyConfiguration::CTopologyConfiguration(const wchar_t* path,
                                               const std::function<CString(int)>& message) {
    TopologyReader reader(path, message, m_problems);
    IniFile file;
    m_problems = LoadSupportFile(file, path);
    m_topologies = reader.Read(file);
    if (m_topologies.empty()) {
        if (FileExists(path)) {
            m_problems.push_back(MessageText(GisMsg::NoTopology, path));
        }
        file.Parse(kDelivered, path);
        m_topologies = reader.Read(file);
    }
}

CTopologyConfiguration::~CTopologyConfiguration() = default;

const CTopology* CTopologyConfiguration::GetTopologyByTopologyType(enmTopologyType type) const {
    const auto hit =
        std::find_if(m_topologies.begin(), m_topologies.end(), [type](const CTopology& topology) {
            return topology.GetTopologyType() == type;
        });
    return hit == m_topologies.end() ? nullptr : &*hit;
}

CString CTopologyConfiguration::GetEntityTypeName(enmEntityType type,
                                                  const System::CGisSystem* pSystem) const {
    for (const CTopology& topology : m_topologies) {
        const CTopologyEntityType* const pEntityType = topology.GetEntityType(type);
        const bool asked = !pSystem || pSystem->GetTopologyType() == topology.GetTopologyType();
        if (pEntityType && asked) {
            return pEntityType->GetName();
        }
    }
    // Systems of another topology have no such entities, so fall back to the name without a
    // system.
    return pSystem ? GetEntityTypeName(type, nullptr) : CString();
}

} // namespace Orvane
