// The text of labels, made from attributes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/arx/DbAttributes.h"
#include "plugins/common/Texts.h"

namespace Orvane::Repository {

/// A text with places for attributes: "{NAME} DN {DIAMETER:0}". The digits behind a colon
/// are decimal places of a number. "{{" and "}}" stand for the braces themselves.
class LabelPattern {
public:
    /// UTF-8. What makes no sense stays a text as it is; Fault tells.
    explicit LabelPattern(std::string_view pattern);

    /// Empty, or why the pattern makes no labels.
    std::optional<Plugins::Msg> Fault() const { return m_fault; }
    /// The label of an entity; empty if none of its attributes has a value.
    std::string Text(const std::function<AcDbValue(AcDbNameId)>& valueOf) const;

private:
    struct Piece {
        std::string text; ///< of a piece without an attribute
        bool isAttribute = false;
        AcDbNameId attribute{};
        int decimals = -1; ///< negative: as many as the number has
    };
    void AddText(std::string_view text);
    void AddAttribute(std::string_view inBraces);

    std::vector<Piece> m_pieces;
    std::optional<Plugins::Msg> m_fault;
};

} // namespace Orvane::Repository
