#include "siblings/giscore/MessageCatalogue.h"

#include <QString>
#include <QTranslator>

namespace Orvane {

namespace {
constexpr const wchar_t* kFallbackLanguage = L"en";
}

CMessageCatalogue::CMessageCatalogue(const CString& folder, const CString& language) {
    if (language.CompareNoCase(kFallbackLanguage) != 0) {
        Load(folder, language);
    }
    Load(folder, kFallbackLanguage);
}

CMessageCatalogue::~CMessageCatalogue() = default;

void CMessageCatalogue::Load(const CString& folder, const CString& language) {
    const CString path = folder + L"tessaly_" + language + L".qm";
    auto translator = std::make_unique<QTranslator>();
    // The name is complete: nothing is to be tried in its place.
    if (translator->load(QString::fromStdWString(path.Str()))) {
        m_translators.push_back(std::move(translator));
    } else {
        m_problems.push_back(path + L": no message file");
    }
}

CString CMessageCatalogue::Text(int id) const {
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

} // namespace Orvane
