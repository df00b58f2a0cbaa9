// The icons of the installation, by handle.
#pragma once

#include <map>
#include <memory>

#include "platform/mfc/IIconSource.h"
#include "siblings/giscore/icons/Icon.h"

namespace Orvane {

class CIconStore final : public IIconSource {
public:
    /// The shared icon of that name in a folder (ending in a separator), the same each time; null
    /// if there is none.
    HICON Get(const CString& folder, const CString& name);
    /// A separate copy, destroyed by the caller.
    HICON Load(const CString& folder, const CString& name, CSize size);

    CImage GetImage(HICON icon, CSize size) override;
    bool Destroy(HICON icon) override;

private:
    HICON Keep(CIcon icon);

    std::map<HICON, std::unique_ptr<CIcon>> m_icons;
    std::map<CString, HICON, CStringLess> m_shared; ///< the shared ones among m_icons
};

} // namespace Orvane
