// How a selection is extended from one entity.
#pragma once

namespace Orvane::Selection {

/// The values are part of the interface.
enum class SelectionType : int {
    None = 0,         ///< the entity alone
    Branch = 0x20000, ///< the network branch containing the entity
    Array = 0x40000,  ///< the array of similar entities containing it
};

} // namespace Orvane::Selection
