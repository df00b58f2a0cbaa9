// The icons of the installation: their handles and the pictures behind these.
#pragma once

#include <map>
#include <memory>

#include "platform/mfc/IIconSource.h"
#include "siblings/giscore/icons/Icon.h"

namespace Orvane {

class CIconStore final : public IIconSource {
public:
    /// The icon of a name in a folder (with a separator at its end), the same each time; null
    /// if there is none.
    HICON Get(const CString& folder, const CString& name);
    /// One of its own for the caller, who destroys it.
    HICON Load(const CString& folder, const CString& name, CSize size);

    CImage GetImage(HICON icon, CSize size) override;
    bool Destroy(HICON icon) override;

private:
    HICON Keep(CIcon icon);

    std::map<HICON, std::unique_ptr<CIcon>> m_icons;
    std::map<CString, HICON, CStringLess> m_shared; ///< those of m_icons that stay
};

} // namespace Orvane
