// Networks with known faults for tests: generated ones, and real ones that are not in the
// repository.
#pragma once

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "tests/support/TestHost.h"

class NetworkFiles {
public:
    /// "generated-water.inp" and "generated-sewer.inp" are generated on demand, with 25 faults,
    /// five of each kind; other names refer to real networks.
    std::filesystem::path Path(const std::string& name) const {
        if (!name.starts_with("generated-")) {
            return RealFolder() / name;
        }
        const std::string format = name == "generated-sewer.inp" ? "swmm" : "epanet";
        const std::string command = TESSALY_STAGE_DIR "/townmaker --seed 11 --sections 300 "
                                                      "--faults 25 --format " +
                                    format + " " + m_folder.Native(name);
        if (std::system(command.c_str()) != 0) {
            throw std::runtime_error(command);
        }
        return m_folder / name;
    }
    static bool HasReal() { return std::filesystem::exists(RealFolder()); }

private:
    static std::filesystem::path RealFolder() {
        return std::filesystem::path(TESSALY_SOURCE_DIR) / "../shared/data";
    }

    TempFolder m_folder;
};
