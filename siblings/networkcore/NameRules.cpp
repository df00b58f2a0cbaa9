#include "siblings/networkcore/NameRules.h"

#include <algorithm>

#include "platform/win/CodePage.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/WholeNumber.h"

namespace Orvane::Topology {

namespace {

struct EntityWord {
    const wchar_t* word;
    enmEntityType type;
    NamePattern pattern; ///< default if no file overrides it
};

const EntityWord& WordFor(enmEntityType type) {
    static const EntityWord kWords[] = {
        {L"node", EntityNode, {"N", "", 0}},
        {L"section", EntitySection, {"S", "", 0}},
        {L"polygon", EntityPolygon, {"A", "", 0}},
    };
    return *std::find_if(std::begin(kWords), std::end(kWords) - 1,
                         [type](const EntityWord& entry) { return entry.type == type; });
}

constexpr enmEntityType kNamedTypes[] = {EntityNode, EntitySection, EntityPolygon};

enmEntityType TypeOf(const CString& word) {
    for (const enmEntityType type : kNamedTypes) {
        if (word.CompareNoCase(NameRules::WordOf(type)) == 0) {
            return type;
        }
    }
    return EntityNone;
}

struct Scope {
    int topology = 0;
    int function = 0;
};

/// "default", "line" or "line.4".
std::optional<Scope> ReadScope(const CString& name) {
    constexpr struct {
        const wchar_t* word;
        int topology;
    } kWords[] = {{L"default", 0},
                  {L"line", TopologyLine},
                  {L"polygon", TopologyPolygon},
                  {L"point", TopologyPoint},
                  {L"scheme", TopologyScheme}};
    const int dot = name.Find(L'.');
    const CString word = dot < 0 ? name : name.Left(dot);
    const auto function = dot < 0 ? std::optional(0) : WholeNumber(name.Mid(dot + 1).View());
    const auto hit = std::find_if(std::begin(kWords), std::end(kWords), [&](const auto& entry) {
        return word.CompareNoCase(entry.word) == 0;
    });
    const bool isMeant =
        hit != std::end(kWords) && function && (dot < 0 || (*function > 0 && hit->topology != 0));
    return isMeant ? std::optional(Scope{hit->topology, *function}) : std::nullopt;
}

} // namespace

std::string NamePattern::Name(int number) const {
    const std::string digits = std::to_string(number);
    const std::size_t zeros =
        static_cast<std::size_t>(width) > digits.size() ? width - digits.size() : 0;
    return prefix + std::string(zeros, '0') + digits + suffix;
}

std::optional<NamePattern> NamePattern::Read(const CString& text) {
    const std::string bytes = WideToUtf8(text.View());
    const std::size_t percent = bytes.find('%');
    if (percent == std::string::npos || bytes.find('%', percent + 1) != std::string::npos) {
        return std::nullopt;
    }
    NamePattern pattern;
    std::size_t at = percent + 1;
    if (at + 1 < bytes.size() && bytes[at] == '0' && bytes[at + 1] >= '1' && bytes[at + 1] <= '9') {
        pattern.width = bytes[at + 1] - '0';
        at += 2;
    }
    if (at >= bytes.size() || bytes[at] != 'd') {
        return std::nullopt;
    }
    pattern.prefix = bytes.substr(0, percent);
    pattern.suffix = bytes.substr(at + 1);
    return pattern;
}

NameRules::NameRules(const IniFile& file, const wchar_t* fileName, std::vector<CString>& problems) {
    const auto note = [&](int line, GisMsg reason, const CString& word) {
        problems.push_back(MessageText(reason, fileName, line, word));
    };
    for (const IniFile::Section& section : file.GetSections()) {
        const std::optional<Scope> scope = ReadScope(section.name);
        if (!scope) {
            note(section.line, GisMsg::NotANameScope, section.name);
            continue;
        }
        for (const IniFile::Entry& entry : section.entries) {
            const enmEntityType type = TypeOf(entry.key);
            const std::optional<NamePattern> pattern = NamePattern::Read(entry.value);
            if (type == EntityNone) {
                note(entry.line, GisMsg::NotAnEntityType, entry.key);
            } else if (!pattern) {
                note(entry.line, GisMsg::NotANamePattern, entry.value);
            } else {
                m_patterns.emplace(Key{scope->topology, scope->function, type}, *pattern);
            }
        }
    }
}

const NamePattern& NameRules::Find(enmTopologyType topology, int function,
                                   enmEntityType type) const {
    for (const Key& key :
         {Key{topology, function, type}, Key{topology, 0, type}, Key{0, 0, type}}) {
        if (const auto hit = m_patterns.find(key); hit != m_patterns.end()) {
            return hit->second;
        }
    }
    return WordFor(type).pattern;
}

const wchar_t* NameRules::WordOf(enmEntityType type) {
    return WordFor(type).word;
}

} // namespace Orvane::Topology
