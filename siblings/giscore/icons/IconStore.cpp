#include "siblings/giscore/icons/IconStore.h"

#include <algorithm>

#include "platform/win/File.h"

namespace Orvane {

namespace {

constexpr CSize kUsualSize(16, 16);

/// The file of an icon; empty if there is none. Names with a separator are rejected because they
/// could leave the folder.
CString FileOf(const CString& folder, const CString& name) {
    const CString path = folder + name + L".svg";
    return !name.IsEmpty() && FileNameOf(name) == name && FileExists(path) ? path : CString();
}

} // namespace

HICON CIconStore::Keep(CIcon icon) {
    auto pIcon = std::make_unique<CIcon>(std::move(icon));
    const HICON handle = pIcon.get();
    m_icons.emplace(handle, std::move(pIcon));
    return handle;
}

HICON CIconStore::Get(const CString& folder, const CString& name) {
    if (const auto known = m_shared.find(name); known != m_shared.end()) {
        return known->second;
    }
    const CString path = FileOf(folder, name);
    return path.IsEmpty() ? nullptr
                          : m_shared.emplace(name, Keep({name, path, kUsualSize})).first->second;
}

HICON CIconStore::Load(const CString& folder, const CString& name, CSize size) {
    const CString path = FileOf(folder, name);
    return path.IsEmpty() ? nullptr : Keep({name, path, size});
}

CImage CIconStore::GetImage(HICON icon, CSize size) {
    const auto found = m_icons.find(icon);
    if (found == m_icons.end()) {
        return {};
    }
    const bool own = size.cx <= 0 || size.cy <= 0;
    return CImage::FromFile(found->second->m_strPath, own ? found->second->m_size : size);
}

bool CIconStore::Destroy(HICON icon) {
    const bool shared = std::any_of(m_shared.begin(), m_shared.end(),
                                    [icon](const auto& entry) { return entry.second == icon; });
    return !shared && m_icons.erase(icon) != 0;
}

} // namespace Orvane
