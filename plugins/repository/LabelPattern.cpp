#include "plugins/repository/LabelPattern.h"

#include <algorithm>

#include "platform/win/CodePage.h"
#include "platform/win/TextFormat.h"
#include "siblings/giscore/query/QueryMatcher.h"

namespace Orvane::Repository {

namespace {

std::string ValueAs(const AcDbValue& value, int decimals) {
    const auto number = Query::ValueNumber(value);
    return decimals >= 0 && number ? WideToUtf8(FormatText(L"%.*f", decimals, *number))
                                   : Query::ValueText(value);
}

} // namespace

LabelPattern::LabelPattern(std::string_view pattern) {
    while (!pattern.empty()) {
        const std::size_t brace = std::min(pattern.find_first_of("{}"), pattern.size());
        AddText(pattern.substr(0, brace));
        pattern.remove_prefix(brace);
        const std::size_t end = pattern.find_first_of("{}", 1);
        if (pattern.starts_with("{{") || pattern.starts_with("}}")) {
            AddText(pattern.substr(0, 1));
            pattern.remove_prefix(2);
        } else if (pattern.starts_with("{") && end != std::string_view::npos &&
                   pattern[end] == '}') {
            AddAttribute(pattern.substr(1, end - 1));
            pattern.remove_prefix(end + 1);
        } else if (!pattern.empty()) {
            m_fault = Plugins::Msg::UnmatchedBrace;
            AddText(pattern.substr(0, 1));
            pattern.remove_prefix(1);
        }
    }
    const bool hasAttribute = std::any_of(m_pieces.begin(), m_pieces.end(),
                                          [](const Piece& piece) { return piece.isAttribute; });
    if (!hasAttribute && !m_fault) {
        m_fault = Plugins::Msg::NoAttributeInIt;
    }
}

void LabelPattern::AddText(std::string_view text) {
    if (!text.empty()) {
        m_pieces.push_back({std::string(text)});
    }
}

void LabelPattern::AddAttribute(std::string_view inBraces) {
    Piece piece;
    piece.isAttribute = true;
    const std::size_t colon = inBraces.find_last_of(':');
    if (colon != std::string_view::npos) {
        const std::string_view digits = inBraces.substr(colon + 1);
        const bool isDigit = digits.size() == 1 && digits[0] >= '0' && digits[0] <= '9';
        piece.decimals = isDigit ? digits[0] - '0' : -1;
        if (!isDigit) {
            m_fault = Plugins::Msg::DecimalsNotADigit;
        }
    }
    const std::string_view name = inBraces.substr(0, colon);
    if (name.empty()) {
        m_fault = Plugins::Msg::AttributeWithoutName;
        return;
    }
    piece.attribute = AcDbIntern(name);
    m_pieces.push_back(std::move(piece));
}

std::string LabelPattern::Text(const std::function<AcDbValue(AcDbNameId)>& valueOf) const {
    std::string text;
    bool hasValue = false;
    for (const Piece& piece : m_pieces) {
        const std::string part =
            piece.isAttribute ? ValueAs(valueOf(piece.attribute), piece.decimals) : piece.text;
        hasValue = hasValue || (piece.isAttribute && !part.empty());
        text += part;
    }
    return hasValue ? text : std::string();
}

} // namespace Orvane::Repository
