// The image list shared by the three trees.
#pragma once

#include "platform/mfc/ImageList.h"
#include "plugins/panels/TreeContent.h"

namespace Orvane::Panels {

/// Definitions appear in several trees and have one image index each, so the trees share the list.
/// Controls copy it and must be given it again after it has grown.
class TreePictures {
public:
    static TreePictures& Instance();

    /// The image index of a node, gray if it belongs to a hidden system; -1 for none.
    int IndexOf(const TreeNode& node);
    const CImageList& List() const { return m_list; }

private:
    TreePictures() = default;
    int NetRoot();

    CImageList m_list{CSize(16, 16)};
    int m_nNetRoot = -1;
};

} // namespace Orvane::Panels
