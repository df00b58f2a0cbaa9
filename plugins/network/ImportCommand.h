// The command that imports networks into the drawing.
#pragma once

namespace Orvane::Network {

/// Asks for a file and a name; if the file does not hold a complete network, also for the network's
/// function and the distance for joining line ends. Returns false, after reporting why, if nothing
/// was imported.
bool ImportNetwork();

} // namespace Orvane::Network
