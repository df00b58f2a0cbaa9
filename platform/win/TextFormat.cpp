#include "platform/win/TextFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "platform/win/CodePage.h"

namespace {

constexpr std::wstring_view kWrongArgument = L"<?>";

struct Directive {
    bool left = false;
    bool zero = false;
    bool plus = false;
    bool blank = false;
    bool alternate = false;
    int width = 0;
    int precision = -1;
    bool narrow = false;
    wchar_t conversion = 0;
};

/// Iterates over the arguments; null after the last one.
class ArgReader {
public:
    explicit ArgReader(std::span<const FormatArg> args) : m_args(args) {}
    const FormatArg* Next() { return m_nNext < m_args.size() ? &m_args[m_nNext++] : nullptr; }
    int NextInt() {
        const FormatArg* arg = Next();
        return arg ? static_cast<int>(arg->Integer()) : 0;
    }

private:
    std::span<const FormatArg> m_args;
    std::size_t m_nNext = 0;
};

// Wider fields are mistakes; the limit keeps a bad format from exhausting memory.
constexpr int kWidest = 100000;

int ReadNumber(std::wstring_view format, std::size_t& at) {
    int number = 0;
    while (at < format.size() && format[at] >= L'0' && format[at] <= L'9') {
        number = std::min(kWidest, number * 10 + static_cast<int>(format[at] - L'0'));
        ++at;
    }
    return number;
}

void ReadFlags(std::wstring_view format, std::size_t& at, Directive& directive) {
    for (; at < format.size(); ++at) {
        switch (format[at]) {
        case L'-':
            directive.left = true;
            break;
        case L'0':
            directive.zero = true;
            break;
        case L'+':
            directive.plus = true;
            break;
        case L' ':
            directive.blank = true;
            break;
        case L'#':
            directive.alternate = true;
            break;
        default:
            return;
        }
    }
}

void ReadWidth(std::wstring_view format, std::size_t& at, ArgReader& args, Directive& directive) {
    if (at < format.size() && format[at] == L'*') {
        ++at;
        directive.width = std::clamp(args.NextInt(), -kWidest, kWidest);
        if (directive.width < 0) {
            directive.left = true;
            directive.width = -directive.width;
        }
        return;
    }
    directive.width = ReadNumber(format, at);
}

void ReadPrecision(std::wstring_view format, std::size_t& at, ArgReader& args,
                   Directive& directive) {
    if (at >= format.size() || format[at] != L'.') {
        return;
    }
    ++at;
    if (at < format.size() && format[at] == L'*') {
        ++at;
        directive.precision = std::min(args.NextInt(), kWidest);
        return;
    }
    directive.precision = ReadNumber(format, at);
}

void ReadLength(std::wstring_view format, std::size_t& at, Directive& directive) {
    // Arguments know their own size, so only "h" before "s" matters.
    while (at < format.size() &&
           std::wstring_view(L"hlLqjzt").find(format[at]) != std::wstring_view::npos) {
        directive.narrow = format[at] == L'h';
        ++at;
    }
}

void Pad(std::wstring& out, std::wstring_view text, const Directive& directive) {
    const auto width = static_cast<std::size_t>(directive.width);
    const std::size_t fill = width > text.size() ? width - text.size() : 0;
    if (!directive.left) {
        out.append(fill, L' ');
    }
    out.append(text);
    if (directive.left) {
        out.append(fill, L' ');
    }
}

void PutText(std::wstring& out, const Directive& directive, const FormatArg* arg) {
    std::wstring decoded;
    std::wstring_view text = kWrongArgument;
    if (arg && arg->GetKind() == FormatArg::Kind::Wide) {
        text = arg->Wide();
    } else if (arg && arg->GetKind() == FormatArg::Kind::Narrow) {
        decoded = Utf8ToWide(arg->Narrow());
        text = decoded;
    }
    if (directive.precision >= 0) {
        text = text.substr(0, static_cast<std::size_t>(directive.precision));
    }
    Pad(out, text, directive);
}

std::uint64_t CutToWidth(const FormatArg& arg) {
    return arg.Bytes() >= sizeof(std::uint64_t)
               ? arg.Integer()
               : arg.Integer() & ((std::uint64_t{1} << (8 * arg.Bytes())) - 1);
}

std::wstring Digits(std::uint64_t value, int base, bool upper) {
    char buffer[72];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, base).ptr;
    std::wstring digits(buffer, end);
    if (upper) {
        for (wchar_t& c : digits) {
            c = c >= L'a' && c <= L'f' ? static_cast<wchar_t>(c - L'a' + L'A') : c;
        }
    }
    return digits;
}

void PutInteger(std::wstring& out, const Directive& directive, const FormatArg* arg) {
    const bool isSigned = directive.conversion == L'd' || directive.conversion == L'i';
    if (!arg || (arg->GetKind() != FormatArg::Kind::Signed &&
                 arg->GetKind() != FormatArg::Kind::Unsigned)) {
        return Pad(out, kWrongArgument, directive);
    }
    const auto value = static_cast<std::int64_t>(arg->Integer());
    const bool negative = isSigned && arg->GetKind() == FormatArg::Kind::Signed && value < 0;
    const std::uint64_t magnitude =
        negative ? std::uint64_t{0} - static_cast<std::uint64_t>(value) : CutToWidth(*arg);
    const bool hex = directive.conversion == L'x' || directive.conversion == L'X';
    std::wstring digits = Digits(magnitude,
                                 hex                            ? 16
                                 : directive.conversion == L'o' ? 8
                                                                : 10,
                                 directive.conversion == L'X');
    std::wstring sign = negative                      ? L"-"
                        : isSigned && directive.plus  ? L"+"
                        : isSigned && directive.blank ? L" "
                        : hex && directive.alternate  ? std::wstring{L'0', directive.conversion}
                                                      : L"";
    int least = directive.precision;
    if (least < 0 && directive.zero && !directive.left) {
        least = directive.width - static_cast<int>(sign.size());
    }
    if (least > static_cast<int>(digits.size())) {
        digits.insert(0, static_cast<std::size_t>(least) - digits.size(), L'0');
    }
    Pad(out, sign + digits, directive);
}

void PutReal(std::wstring& out, const Directive& directive, const FormatArg* arg) {
    if (!arg || arg->GetKind() != FormatArg::Kind::Real) {
        return Pad(out, kWrongArgument, directive);
    }
    const int precision = directive.precision < 0 ? 6 : directive.precision;
    const std::chars_format form = directive.conversion == L'f'   ? std::chars_format::fixed
                                   : directive.conversion == L'e' ? std::chars_format::scientific
                                                                  : std::chars_format::general;
    // The longest fixed-point double has 309 digits before the point.
    std::string buffer(static_cast<std::size_t>(precision) + 330, '\0');
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), arg->Real(), form, precision)
            .ptr;
    std::wstring text(buffer.data(), end);
    if (!std::signbit(arg->Real()) && (directive.plus || directive.blank)) {
        text.insert(text.begin(), directive.plus ? L'+' : L' ');
    }
    const auto width = static_cast<std::size_t>(directive.width);
    if (directive.zero && !directive.left && text.size() < width && std::isfinite(arg->Real())) {
        const bool hasSign = text[0] == L'-' || text[0] == L'+' || text[0] == L' ';
        text.insert(hasSign ? 1 : 0, width - text.size(), L'0');
    }
    Pad(out, text, directive);
}

void PutCharacter(std::wstring& out, const Directive& directive, const FormatArg* arg) {
    if (!arg || (arg->GetKind() != FormatArg::Kind::Signed &&
                 arg->GetKind() != FormatArg::Kind::Unsigned)) {
        return Pad(out, kWrongArgument, directive);
    }
    Pad(out, std::wstring(1, static_cast<wchar_t>(arg->Integer())), directive);
}

void PutPointer(std::wstring& out, const Directive& directive, const FormatArg* arg) {
    if (!arg || arg->GetKind() != FormatArg::Kind::Pointer) {
        return Pad(out, kWrongArgument, directive);
    }
    Pad(out, L"0x" + Digits(arg->Integer(), 16, false), directive);
}

void Put(std::wstring& out, const Directive& directive, ArgReader& args) {
    switch (directive.conversion) {
    case L's':
    case L'S':
        return PutText(out, directive, args.Next());
    case L'd':
    case L'i':
    case L'u':
    case L'x':
    case L'X':
    case L'o':
        return PutInteger(out, directive, args.Next());
    case L'f':
    case L'e':
    case L'g':
        return PutReal(out, directive, args.Next());
    case L'c':
        return PutCharacter(out, directive, args.Next());
    case L'p':
        return PutPointer(out, directive, args.Next());
    case L'%':
        out += L'%';
        return;
    default:
        out += kWrongArgument;
        return;
    }
}

} // namespace

std::wstring FormatTextV(std::wstring_view format, std::span<const FormatArg> args) {
    std::wstring out;
    out.reserve(format.size() + 16 * args.size());
    ArgReader reader(args);
    std::size_t at = 0;
    while (at < format.size()) {
        const std::size_t percent = format.find(L'%', at);
        out.append(format.substr(at, percent - at));
        if (percent == std::wstring_view::npos) {
            break;
        }
        at = percent + 1;
        Directive directive;
        ReadFlags(format, at, directive);
        ReadWidth(format, at, reader, directive);
        ReadPrecision(format, at, reader, directive);
        ReadLength(format, at, directive);
        directive.conversion = at < format.size() ? format[at++] : L'\0';
        Put(out, directive, reader);
    }
    return out;
}
