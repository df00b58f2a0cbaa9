// What a plug-in implements so that its commands run, and what comes back from a run.
#pragma once

#include <boost/shared_ptr.hpp>

#include "platform/win/String.h"
#include "siblings/giscore/topology/GisTypes.h"
#include "workspacecore/Api.h"

namespace Orvane {
class CRepositoryItem;
namespace Query {
class CQueryDefinition;
}
namespace Selection {
class CSelectionSet;
}
} // namespace Orvane

namespace Orvane::Workspace {

class CWsTreeItemData;

/// The result of a command. What the texts and numbers hold is agreed between an executor
/// and its callers; the order of the members is part of the interface. By custom a status
/// other than 0 says that the command was carried out.
struct CExecutorReturnValue {
    CExecutorReturnValue() = default;
    CExecutorReturnValue(int status, const wchar_t* text1, const wchar_t* text2,
                         const wchar_t* text3, const wchar_t* text4, int number,
                         const wchar_t* text5, enmEntityType entityType)
        : m_nStatus(status), m_strText1(text1), m_strText2(text2), m_strText3(text3),
          m_strText4(text4), m_nNumber(number), m_strText5(text5), m_enmEntityType(entityType) {}

    int m_nStatus = 0;
    CString m_strText1;
    CString m_strText2;
    CString m_strText3;
    CString m_strText4;
    int m_nNumber = -1;
    CString m_strText5;
    CString m_strText6;
    enmEntityType m_enmEntityType = EntityNone;
};

/// The result that stands for a command that was not carried out.
inline boost::shared_ptr<CExecutorReturnValue> NeutralReturnValue() {
    return boost::shared_ptr<CExecutorReturnValue>(
        new CExecutorReturnValue(0, L"", L"", L"", L"", -1, L"", EntityNone));
}

/// Runs commands. Registered with the commands by pointer and not owned: it has to live
/// as long as they do. Called on the main thread; may be called again from inside a call.
class IWsCommandExecutor {
public:
    /// Any argument may be null. Must not return null.
    virtual boost::shared_ptr<CExecutorReturnValue> Execute(const wchar_t* lpszCommandId,
                                                            Query::CQueryDefinition* pQuery,
                                                            CWsTreeItemData* pItemData) = 0;

    /// A run on given objects instead of what the user has chosen. (The spelling is the
    /// interface's.)
    virtual boost::shared_ptr<CExecutorReturnValue>
    ExecuteExplicite(const wchar_t* /*lpszCommandId*/, CRepositoryItem* /*pRepositoryItem*/,
                     Selection::CSelectionSet* /*pSelectionSet*/, void* /*pData*/) {
        return NeutralReturnValue();
    }

protected:
    ~IWsCommandExecutor() = default;
};

} // namespace Orvane::Workspace
