// townmaker: writes the water or sewer network of a fictional town to a file. The same seed and
// size give the same town on every machine.
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "Networks.h"

namespace {

constexpr const char* kUsage =
    "usage: townmaker --seed N --sections N [--format epanet|swmm] [--faults N] FILE\n"
    "  --seed N      selects the town; the same number gives the same town\n"
    "  --sections N  number of sections, at least 30\n"
    "  --format F    epanet (water supply, the default) or swmm (sewers and parcels)\n"
    "  --faults N    adds N faults beside the town, alternating between five kinds\n";

struct Wishes {
    std::optional<std::uint64_t> seed;
    std::optional<std::uint64_t> sections;
    std::optional<std::uint64_t> faults = 0;
    std::string format = "epanet";
    std::string file;

    bool AreSound() const {
        return seed && sections && faults && !file.empty() &&
               *sections >= TownMaker::Town::kFewestSections && *sections <= 100'000'000 &&
               *faults <= 10'000'000 && (format == "epanet" || format == "swmm");
    }
};

std::optional<std::uint64_t> ToNumber(std::string_view text) {
    std::uint64_t value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isWhole = read.ec == std::errc() && read.ptr == text.data() + text.size();
    return isWhole ? std::optional(value) : std::nullopt;
}

/// True if the option is known; its value may still be invalid.
bool TakeOption(Wishes& wishes, std::string_view option, const char* value) {
    if (option == "--format") {
        wishes.format = value;
        return true;
    }
    const std::pair<std::string_view, std::optional<std::uint64_t>&> numbers[] = {
        {"--seed", wishes.seed}, {"--sections", wishes.sections}, {"--faults", wishes.faults}};
    for (const auto& [name, number] : numbers) {
        if (name == option) {
            number = ToNumber(value);
            return true;
        }
    }
    return false;
}

std::optional<Wishes> ReadWishes(int count, char** words) {
    Wishes wishes;
    for (int i = 1; i < count; ++i) {
        const std::string_view word = words[i];
        if (!word.starts_with("--")) {
            wishes.file = word;
        } else if (i + 1 == count || !TakeOption(wishes, word, words[++i])) {
            return std::nullopt;
        }
    }
    return wishes.AreSound() ? std::optional(wishes) : std::nullopt;
}

std::string OriginOf(const Wishes& wishes) {
    std::string origin = "made by townmaker --seed " + std::to_string(*wishes.seed) +
                         " --sections " + std::to_string(*wishes.sections) + " --format " +
                         wishes.format;
    return *wishes.faults == 0 ? origin : origin + " --faults " + std::to_string(*wishes.faults);
}

bool Write(const Wishes& wishes, std::FILE* file) {
    const bool isWater = wishes.format == "epanet";
    const TownMaker::Town town(*wishes.seed, *wishes.sections,
                               isWater ? TownMaker::kWaterExtra : TownMaker::kSewerExtra);
    TownMaker::TextFile text(file);
    (isWater ? TownMaker::WriteWater : TownMaker::WriteSewer)(town, OriginOf(wishes),
                                                              *wishes.faults, text);
    return text.Finish();
}

} // namespace

int main(int count, char** words) {
    const std::optional<Wishes> wishes = ReadWishes(count, words);
    if (!wishes) {
        std::fputs(kUsage, stderr);
        return 2;
    }
    std::FILE* file = std::fopen(wishes->file.c_str(), "wb");
    const bool isWritten = file && Write(*wishes, file);
    const bool isClosed = file && std::fclose(file) == 0;
    if (!isWritten || !isClosed) {
        std::perror(wishes->file.c_str());
        return 1;
    }
    return 0;
}
