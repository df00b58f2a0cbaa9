// Texts for the user by number, in the user's language.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/win/String.h"

class QTranslator;

namespace Orvane {

/// One language, with English behind it for what it lacks. Looks into compiled message
/// files "tessaly_LANGUAGE.qm". Internal to this module.
class CMessageCatalogue {
public:
    /// \param folder with a separator at its end
    CMessageCatalogue(const CString& folder, const CString& language);
    ~CMessageCatalogue();
    CMessageCatalogue(const CMessageCatalogue&) = delete;
    CMessageCatalogue& operator=(const CMessageCatalogue&) = delete;

    /// "#ID" for an id that no language has.
    CString Text(int id) const;
    /// One text for each language whose file could not be read.
    const std::vector<CString>& GetProblems() const { return m_problems; }

private:
    void Load(const CString& folder, const CString& language);

    std::vector<std::unique_ptr<QTranslator>> m_translators; ///< the first one that knows wins
    mutable std::map<int, CString> m_texts;                  ///< what was asked for already
    std::vector<CString> m_problems;
};

} // namespace Orvane
