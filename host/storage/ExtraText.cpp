#include "host/storage/ExtraText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>

namespace Tessaly {

namespace {

using Kind = AcDbValue::Kind;

constexpr char kColumn = 'c';

/// Characters that would end a name or a line, and the letter behind a backslash for each.
struct Escape {
    char character;
    char letter;
};
constexpr std::array<Escape, 4> kEscapes = {{{'\\', '\\'}, {'\n', 'n'}, {'=', 'e'}, {'\0', '0'}}};

void AppendEscaped(std::string& to, std::string_view text) {
    for (const char c : text) {
        bool isPlain = true;
        for (const Escape& escape : kEscapes) {
            if (c == escape.character) {
                to += '\\';
                to += escape.letter;
                isPlain = false;
            }
        }
        if (isPlain) {
            to += c;
        }
    }
}

std::string Unescaped(std::string_view text) {
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char c = text[i];
        if (c == '\\' && i + 1 < text.size()) {
            ++i;
            for (const Escape& escape : kEscapes) {
                if (text[i] == escape.letter) {
                    c = escape.character;
                }
            }
        }
        plain += c;
    }
    return plain;
}

char KindLetter(Kind kind) {
    switch (kind) {
    case Kind::Integer:
        return 'i';
    case Kind::Real:
        return 'r';
    case Kind::Text:
        return 't';
    default:
        return 'n';
    }
}

template <class T>
std::string CharsOf(T number) {
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), end.ptr};
}

/// Sets the item's value from its text. False if that is no such number.
bool Interpret(char letter, ExtraItem& item) {
    const char* pEnd = item.text.data() + item.text.size();
    if (letter == 'i') {
        std::int64_t number = 0;
        const auto parsed = std::from_chars(item.text.data(), pEnd, number);
        item.value = AcDbValue(number);
        return parsed.ec == std::errc() && parsed.ptr == pEnd;
    }
    if (letter == 'r') {
        double number = 0;
        const auto parsed = std::from_chars(item.text.data(), pEnd, number);
        item.value = AcDbValue(number);
        return parsed.ec == std::errc() && parsed.ptr == pEnd;
    }
    if (letter == 't') {
        item.value = AcDbValue(std::string_view(item.text));
    }
    return letter == 't' || letter == 'n';
}

bool ParseLine(std::string_view line, ExtraItem& item) {
    if (line.empty()) {
        return false;
    }
    const std::size_t equals = line.find('=');
    item.name = Unescaped(line.substr(1, equals == line.npos ? line.npos : equals - 1));
    if (line.front() == kColumn) {
        return true;
    }
    item.where = ExtraItem::Where::Here;
    item.text = equals == line.npos ? std::string() : Unescaped(line.substr(equals + 1));
    return Interpret(line.front(), item);
}

} // namespace

std::string NumberText(double number) {
    return CharsOf(number);
}

std::string NumberText(std::int64_t number) {
    return CharsOf(number);
}

void AppendExtraColumn(std::string& extra, std::string_view name) {
    extra += kColumn;
    AppendEscaped(extra, name);
    extra += '\n';
}

void AppendExtraValue(std::string& extra, std::string_view name, const AcDbValue& value) {
    extra += KindLetter(value.kind());
    AppendEscaped(extra, name);
    if (value.kind() == Kind::Integer) {
        extra += '=' + NumberText(*value.asInteger());
    } else if (value.kind() == Kind::Real) {
        extra += '=' + NumberText(*value.asReal());
    } else if (value.kind() == Kind::Text) {
        extra += '=';
        AppendEscaped(extra, value.asText());
    }
    extra += '\n';
}

std::vector<ExtraItem> ParseExtra(std::string_view extra) {
    std::vector<ExtraItem> items;
    while (!extra.empty()) {
        const std::size_t end = std::min(extra.find('\n'), extra.size());
        ExtraItem item;
        if (ParseLine(extra.substr(0, end), item)) {
            items.push_back(std::move(item));
        }
        extra.remove_prefix(std::min(end + 1, extra.size()));
    }
    // Texts point into their items, which have stopped moving only now.
    for (ExtraItem& item : items) {
        if (item.value.kind() == Kind::Text) {
            item.value = AcDbValue(std::string_view(item.text));
        }
    }
    return items;
}

AcDbValue ColumnValue(Kind column, const AcDbValue& value, std::string& scratch) {
    if (value.isNull()) {
        return {};
    }
    if (column == Kind::Text) {
        if (value.kind() == Kind::Text) {
            // To other programs a text ends at its first NUL.
            return value.asText().substr(0, value.asText().find('\0'));
        }
        scratch = value.kind() == Kind::Integer ? NumberText(*value.asInteger())
                                                : NumberText(*value.asReal());
        return std::string_view(scratch);
    }
    if (column == Kind::Real) {
        const std::optional<double> real = value.asReal();
        if (!real || std::isnan(*real)) {
            return {};
        }
        return *real + 0.0; // the file knows no negative zero
    }
    return value.kind() == Kind::Integer ? value : AcDbValue();
}

bool IsHeldByColumn(Kind column, const AcDbValue& value) {
    if (value.kind() != column) {
        return false;
    }
    if (column == Kind::Text) {
        return value.asText().find('\0') == std::string_view::npos;
    }
    if (column == Kind::Real) {
        const double real = *value.asReal();
        return !std::isnan(real) && !(real == 0 && std::signbit(real));
    }
    return true;
}

bool IsSameValue(const AcDbValue& a, const AcDbValue& b) {
    if (a.kind() != b.kind()) {
        return false;
    }
    switch (a.kind()) {
    case Kind::Integer:
        return a.asInteger() == b.asInteger();
    case Kind::Real:
        return std::bit_cast<std::uint64_t>(*a.asReal()) ==
               std::bit_cast<std::uint64_t>(*b.asReal());
    case Kind::Text:
        return a.asText() == b.asText();
    default:
        return true;
    }
}

} // namespace Tessaly
