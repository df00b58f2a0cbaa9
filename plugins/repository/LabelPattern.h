// Builds label texts from attributes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/arx/DbAttributes.h"
#include "plugins/common/Texts.h"

namespace Orvane::Repository {

/// A text with placeholders for attributes: "{NAME} DN {DIAMETER:0}". The number after a colon is
/// the number of decimal places. "{{" and "}}" are literal braces.
class LabelPattern {
public:
    /// UTF-8. Invalid parts are kept as literal text; see Fault.
    explicit LabelPattern(std::string_view pattern);

    /// The error in the pattern, if any.
    std::optional<Plugins::Msg> Fault() const { return m_fault; }
    /// The label of an entity; empty if none of its attributes has a value.
    std::string Text(const std::function<AcDbValue(AcDbNameId)>& valueOf) const;

private:
    struct Piece {
        std::string text; ///< only for literal text
        bool isAttribute = false;
        AcDbNameId attribute{};
        int decimals = -1; ///< negative: as many as needed
    };
    void AddText(std::string_view text);
    void AddAttribute(std::string_view inBraces);

    std::vector<Piece> m_pieces;
    std::optional<Plugins::Msg> m_fault;
};

} // namespace Orvane::Repository
