// What a module provides for the items of a repository.
#pragma once

#include <boost/shared_ptr.hpp>

namespace Orvane {

class CRepositoryItem;

/// Makes items of one family. Registered by tag, not owned.
class CRepositoryItemFactory {
public:
    virtual ~CRepositoryItemFactory() = default;
    /// A new item with default content; never null.
    virtual boost::shared_ptr<CRepositoryItem> CreateItem(const wchar_t* guid,
                                                          const wchar_t* name) = 0;
};

} // namespace Orvane
