#include "siblings/giscore/repository/RepositoryItem.h"

#include "siblings/giscore/repository/RepositoryItemFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/Guid.h"
#include "siblings/giscore/utility/XmlElement.h"

namespace Orvane {

namespace {

constexpr const wchar_t* kRoot = L"item";
constexpr const wchar_t* kTag = L"tag";
constexpr const wchar_t* kGuid = L"guid";
constexpr const wchar_t* kName = L"name";
constexpr const wchar_t* kEntityType = L"entityType";

/// The root of an item of a family; nothing, with a reason, for any other text.
std::optional<XmlElement> ReadRoot(std::wstring_view text, const wchar_t* tag, CString& reason) {
    std::optional<XmlElement> root = ReadXml(text, reason);
    if (root && root->name != kRoot) {
        reason = MessageText(GisMsg::OtherRoot, root->name, kRoot);
        return std::nullopt;
    }
    if (root && root->Get(kTag).CompareNoCase(tag) != 0) {
        reason = MessageText(GisMsg::OtherFamily, root->Get(kTag));
        return std::nullopt;
    }
    return root;
}

} // namespace

CRepositoryItem::~CRepositoryItem() = default;

CString CRepositoryItem::GetXML() const {
    XmlElement root(kRoot);
    root.Set(kTag, m_strRepositoryTag).Set(kGuid, m_strGuid).Set(kName, m_strName);
    root.Set(kEntityType, m_enmEntityType);
    WriteContent(root);
    return WriteXml(root);
}

int CRepositoryItem::ParseXML(const wchar_t* text, CString* pReason) {
    CString reason;
    const auto root = ReadRoot(text ? text : L"", m_strRepositoryTag, reason);
    if (root) {
        reason = Take(*root);
    }
    if (pReason) {
        *pReason = reason;
    }
    return reason.IsEmpty();
}

CString CRepositoryItem::Take(const XmlElement& root) {
    const CString name = root.Get(kName).Trim();
    const auto entityType = root.GetInt(kEntityType);
    if (name.IsEmpty()) {
        return MessageText(GisMsg::WithoutName);
    }
    if (!entityType) {
        return MessageText(GisMsg::EntityTypeNotANumber);
    }
    m_strName = name;
    m_enmEntityType = static_cast<enmEntityType>(*entityType);
    return ReadContent(root);
}

boost::shared_ptr<CRepositoryItem>
ReadRepositoryItem(const CString& text, const wchar_t* repositoryTag, CString& reason) {
    const auto root = ReadRoot(text.View(), repositoryTag, reason);
    if (!root) {
        return {};
    }
    const CString guid = root->Get(kGuid);
    CRepositoryItemFactory* const pFactory =
        CRepositoryManager::Instance()->GetRepositoryItemFactory(repositoryTag);
    if (!IsGuid(guid.View()) || !pFactory) {
        reason = MessageText(pFactory ? GisMsg::WithoutGuid : GisMsg::NoModuleForFamily);
        return {};
    }
    auto item = pFactory->CreateItem(guid, root->Get(kName));
    reason = item->Take(*root);
    item->SetOrigin(text);
    return reason.IsEmpty() ? item : boost::shared_ptr<CRepositoryItem>();
}

boost::shared_ptr<CRepositoryItem> CopyRepositoryItem(const CRepositoryItem& item,
                                                      const wchar_t* name) {
    CRepositoryItemFactory* const pFactory =
        CRepositoryManager::Instance()->GetRepositoryItemFactory(item.GetRepositoryTag());
    if (!pFactory) {
        return {};
    }
    auto copy = pFactory->CreateItem(NewGuid(), name);
    copy->ParseXML(item.GetXML());
    copy->SetName(name);
    return copy;
}

} // namespace Orvane
