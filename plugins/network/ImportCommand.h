// The command that brings networks into the drawing.
#pragma once

namespace Orvane::Network {

/// Asks for a file and a name, and for files that are no network files what the network is
/// for and how near ends have to be to meet. False, with the reason said, if nothing was
/// imported.
bool ImportNetwork();

} // namespace Orvane::Network
