// Something that is kept in a repository: a query, a label style, a report layout.
#pragma once

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane {

class GISCORE_API CRepositoryItem {
public:
    CRepositoryItem(const wchar_t* repositoryTag, const wchar_t* guid, const wchar_t* name)
        : m_strRepositoryTag(repositoryTag), m_strGuid(guid), m_strName(name) {}
    virtual ~CRepositoryItem();

    /// Names the family of items, and with it the repository.
    const CString& GetRepositoryTag() const { return m_strRepositoryTag; }
    /// Never changes, whatever the item is called.
    const CString& GetGuid() const { return m_strGuid; }
    const CString& GetName() const { return m_strName; }
    void SetName(const wchar_t* name) { m_strName = name; }

protected:
    CRepositoryItem(const CRepositoryItem&) = default;
    CRepositoryItem& operator=(const CRepositoryItem&) = default;

private:
    CString m_strRepositoryTag;
    CString m_strGuid;
    CString m_strName;
};

} // namespace Orvane
