// Something that is kept in a repository: a query, a theme, a report layout.
#pragma once

#include <boost/shared_ptr.hpp>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane {

struct XmlElement;

/// One configuration, as a text: <item tag="QUERY" guid="..." name="..." entityType="0">,
/// with what the family itself keeps as further attributes and elements.
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
    /// The entity folder in which it stands; EntityNone in families that have none.
    enmEntityType GetEntityType() const { return m_enmEntityType; }
    void SetEntityType(enmEntityType type) { m_enmEntityType = type; }

    /// The text of which the item was made, as its store had it: by that the store knows
    /// whether somebody else has changed it since. Empty for an item that is new.
    const CString& GetOrigin() const { return m_strOrigin; }
    void SetOrigin(CString text) const { m_strOrigin = std::move(text); }

    /// One line.
    CString GetXML() const;
    /// Takes all but tag and GUID, which stay the item's own. 0, with a reason, for a text
    /// that is none of the family; the item may then be changed in part.
    int ParseXML(const wchar_t* text, CString* pReason = nullptr);

protected:
    CRepositoryItem(const CRepositoryItem&) = default;
    CRepositoryItem& operator=(const CRepositoryItem&) = default;

    /// What the family itself keeps.
    virtual void WriteContent(XmlElement& /*root*/) const {}
    /// \return an empty text, or the reason why it makes no sense
    virtual CString ReadContent(const XmlElement& /*root*/) { return {}; }

private:
    friend boost::shared_ptr<CRepositoryItem> ReadRepositoryItem(const CString&, const wchar_t*,
                                                                 CString&);
    CString Take(const XmlElement& root);

    CString m_strRepositoryTag;
    CString m_strGuid;
    CString m_strName;
    mutable CString m_strOrigin; ///< no part of what the item is
    enmEntityType m_enmEntityType = EntityNone;
};

/// The item of a text, made by the item factory of the family. Null, with a reason, for a
/// text that is none of the family, and without a factory.
GISCORE_API boost::shared_ptr<CRepositoryItem>
ReadRepositoryItem(const CString& text, const wchar_t* repositoryTag, CString& reason);

/// A copy with a GUID of its own. Null without a factory.
GISCORE_API boost::shared_ptr<CRepositoryItem> CopyRepositoryItem(const CRepositoryItem& item,
                                                                  const wchar_t* name);

} // namespace Orvane
