#include "siblings/giscore/data/DataDefinition.h"

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/SupportFile.h"

namespace Orvane::Data {

namespace {

class DefinitionReader {
public:
    DefinitionReader(CString path, std::vector<CString> problems)
        : m_strPath(std::move(path)), m_problems(std::move(problems)) {}

    CDataDefinition Read(const IniFile::Section& section) {
        CDataDefinition definition;
        definition.m_strName = definition.m_strLabel = section.name;
        for (const IniFile::Entry& entry : section.entries) {
            if (entry.key.CompareNoCase(L"label") == 0) {
                definition.m_strLabel = entry.value;
            } else if (entry.key.CompareNoCase(L"unit") == 0) {
                definition.m_strUnit = entry.value;
            } else if (entry.key.CompareNoCase(L"type") == 0) {
                ReadType(definition, entry);
            } else {
                Note(entry, GisMsg::UnknownKey, entry.key);
            }
        }
        return definition;
    }

    std::vector<CString>& Problems() { return m_problems; }

private:
    void ReadType(CDataDefinition& definition, const IniFile::Entry& entry) {
        if (entry.value.CompareNoCase(L"text") == 0) {
            definition.m_type = CDataDefinition::Type::Text;
        } else if (entry.value.CompareNoCase(L"number") != 0) {
            Note(entry, GisMsg::NeitherNumberNorText, entry.value);
        }
    }

    void Note(const IniFile::Entry& entry, GisMsg reason, const CString& word) {
        m_problems.push_back(MessageText(reason, m_strPath, entry.line, word));
    }

    CString m_strPath;
    std::vector<CString> m_problems;
};

} // namespace

std::vector<CDataDefinition> ReadDataDefinitions(const wchar_t* fileName) {
    CModuleConfiguration* const pConfiguration = CModuleConfiguration::Instance();
    const CString path = pConfiguration->GetPath(L"support") + fileName;
    std::vector<CDataDefinition> definitions;
    IniFile file;
    DefinitionReader reader(path, LoadSupportFile(file, path));
    for (const IniFile::Section& section : file.GetSections()) {
        definitions.push_back(reader.Read(section));
    }
    pConfiguration->SetProblems(fileName, std::move(reader.Problems()));
    return definitions;
}

} // namespace Orvane::Data
