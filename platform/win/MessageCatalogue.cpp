#include "platform/win/MessageCatalogue.h"

#include <QString>
#include <QTranslator>

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <map>
#include <memory>

#include "platform/win/CodePage.h"
#include "platform/win/IniFile.h"

namespace {

constexpr const wchar_t* kFallbackLanguage = L"en";

bool IsLanguage(const CString& text) {
    return !text.IsEmpty() && std::all_of(text.Str().begin(), text.Str().end(), [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'_';
    });
}

/// Folder of the messages installed with this library.
CString OwnFolder() {
    Dl_info self{};
    if (dladdr(reinterpret_cast<const void*>(&UseLanguage), &self) == 0 || !self.dli_fname) {
        return {};
    }
    const auto library = std::filesystem::path(self.dli_fname).parent_path();
    return Utf8ToWide((library / "share/messages/").string());
}

/// One language, with English as fallback.
class Catalogue {
public:
    Catalogue(const CString& folder, const CString& language) : m_strLanguage(language) {
        if (language.CompareNoCase(kFallbackLanguage) != 0) {
            Load(folder, language);
        }
        if (!Load(folder, kFallbackLanguage)) {
            const std::vector<CString> problems = m_problems;
            Load(OwnFolder(), kFallbackLanguage);
            m_problems = problems;
        }
    }

    CString Text(int id) {
        if (const auto known = m_texts.find(id); known != m_texts.end()) {
            return known->second;
        }
        const QByteArray key = QByteArray::number(id);
        CString text = L"#" + CString(QString::fromLatin1(key).toStdWString());
        for (const auto& translator : m_translators) {
            const QString found = translator->translate("", key.constData());
            if (!found.isEmpty()) {
                text = found.toStdWString();
                break;
            }
        }
        return m_texts.emplace(id, text).first->second;
    }
    const CString& GetLanguage() const { return m_strLanguage; }
    const std::vector<CString>& GetProblems() const { return m_problems; }

private:
    bool Load(const CString& folder, const CString& language) {
        const CString path = folder + L"tessaly_" + language + L".qm";
        auto translator = std::make_unique<QTranslator>();
        // The full file name is given, so the translator must not try shorter ones.
        const bool isRead = translator->load(QString::fromStdWString(path.Str()));
        if (isRead) {
            m_translators.push_back(std::move(translator));
        } else {
            m_problems.push_back(path + L": no message file");
        }
        return isRead;
    }

    CString m_strLanguage;
    std::vector<std::unique_ptr<QTranslator>> m_translators; ///< in order of precedence
    std::map<int, CString> m_texts;                          ///< cache
    std::vector<CString> m_problems;
};

/// Never destroyed: modules still print while they are unloaded.
std::unique_ptr<Catalogue>& InUse() {
    static auto* const catalogue = new std::unique_ptr<Catalogue>;
    return *catalogue;
}

Catalogue& Current() {
    if (!InUse()) {
        InUse() = std::make_unique<Catalogue>(OwnFolder(), kFallbackLanguage);
    }
    return *InUse();
}

} // namespace

std::vector<CString> UseLanguage(const CString& folder, const CString& language) {
    InUse() = std::make_unique<Catalogue>(
        folder, IsLanguage(language) ? language : CString(kFallbackLanguage));
    return InUse()->GetProblems();
}

std::vector<CString> UseLanguageOf(const wchar_t* settingsFile, const CString& folder) {
    IniFile settings;
    settings.Load(settingsFile);
    const CString* const pLanguage = settings.Find(L"General", L"language");
    return UseLanguage(folder, pLanguage ? *pLanguage : CString());
}

CString Language() {
    return Current().GetLanguage();
}

CString MessageText(int id) {
    return Current().Text(id);
}
