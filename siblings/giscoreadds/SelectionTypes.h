// How a selection is widened from one entity.
#pragma once

namespace Orvane::Selection {

/// The values are part of the interface.
enum class SelectionType : int {
    None = 0,         ///< the entity alone
    Branch = 0x20000, ///< the branch of the network that it lies on
    Array = 0x40000,  ///< the array of like entities that it belongs to
};

} // namespace Orvane::Selection
