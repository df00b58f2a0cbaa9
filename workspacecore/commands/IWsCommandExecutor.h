// Interface through which plug-ins run their commands, and the result type.
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

/// The result of a command. The meaning of the texts and numbers is agreed between an executor
/// and its callers; the order of the members is part of the interface. By convention a non-zero
/// status means that the command was executed.
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

/// The result for a command that was not executed.
inline boost::shared_ptr<CExecutorReturnValue> NeutralReturnValue() {
    return boost::shared_ptr<CExecutorReturnValue>(
        new CExecutorReturnValue(0, L"", L"", L"", L"", -1, L"", EntityNone));
}

/// Runs commands. Registered with the commands by pointer and not owned; it must live as long as
/// they do. Called on the main thread; calls may nest.
class IWsCommandExecutor {
public:
    /// Any argument may be null. Must not return null.
    virtual boost::shared_ptr<CExecutorReturnValue> Execute(const wchar_t* lpszCommandId,
                                                            Query::CQueryDefinition* pQuery,
                                                            CWsTreeItemData* pItemData) = 0;

    /// Runs on the given objects instead of the user's selection. (The spelling is part of the
    /// interface.)
    virtual boost::shared_ptr<CExecutorReturnValue>
    ExecuteExplicite(const wchar_t* /*lpszCommandId*/, CRepositoryItem* /*pRepositoryItem*/,
                     Selection::CSelectionSet* /*pSelectionSet*/, void* /*pData*/) {
        return NeutralReturnValue();
    }

protected:
    ~IWsCommandExecutor() = default;
};

} // namespace Orvane::Workspace
