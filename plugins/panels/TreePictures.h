// The pictures of all three trees, in one list.
#pragma once

#include "platform/mfc/ImageList.h"
#include "plugins/panels/TreeContent.h"

namespace Orvane::Panels {

/// Definitions stand in several trees and keep one place in the list each, so the trees
/// share it. A control copies the list, so it has to take it anew once it has grown.
class TreePictures {
public:
    static TreePictures& Instance();

    /// The place of a node's picture, gray for what belongs to a hidden system; -1 for none.
    int IndexOf(const TreeNode& node);
    const CImageList& List() const { return m_list; }

private:
    TreePictures() = default;
    int NetRoot();

    CImageList m_list{CSize(16, 16)};
    int m_nNetRoot = -1;
};

} // namespace Orvane::Panels
