#include "host/desktop/LayoutFile.h"

#include <algorithm>
#include <charconv>
#include <iterator>

#include "host/Texts.h"
#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

// One value a line: "key=value", the first line naming the version, the last one saying that
// nothing is missing. Bytes are written in hexadecimal, texts in UTF-8 with line ends escaped.
constexpr std::string_view kVersion = "tessaly layout 1";
constexpr std::string_view kEnd = "end";

std::string ToHex(const std::string& bytes) {
    constexpr char kDigits[] = "0123456789abcdef";
    std::string hex;
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        hex += kDigits[byte >> 4];
        hex += kDigits[byte & 15];
    }
    return hex;
}

int DigitOf(char c) {
    return c >= '0' && c <= '9' ? c - '0' : c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

bool FromHex(std::string_view hex, std::string& bytes) {
    if (hex.size() % 2 != 0) {
        return false;
    }
    for (std::size_t i = 0; i < hex.size(); i += 2) {
        const int high = DigitOf(hex[i]);
        const int low = DigitOf(hex[i + 1]);
        if (high < 0 || low < 0) {
            return false;
        }
        bytes += static_cast<char>(high * 16 + low);
    }
    return true;
}

std::string Line(std::string_view key, const std::string& value) {
    return std::string(key) + "=" + value + "\n";
}

std::string TextLine(std::string_view key, const CString& text) {
    return Line(key, ToHex(WideToUtf8(text.View())));
}

bool ReadText(std::string_view value, CString& text) {
    std::string utf8;
    const bool isText = FromHex(value, utf8);
    text = Utf8ToWide(utf8);
    return isText;
}

/// Numbers that no screens reach are refused, as sums of them could overflow.
bool ReadNumber(std::string_view& text, int& number) {
    constexpr int kFarthest = 100'000;
    const auto [pEnd, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    text.remove_prefix(static_cast<std::size_t>(pEnd - text.data()));
    return error == std::errc() && number >= -kFarthest && number <= kFarthest;
}

bool ReadWindow(std::string_view value, ScreenRect& window) {
    int* const numbers[] = {&window.left, &window.top, &window.width, &window.height};
    for (int* const pNumber : numbers) {
        if (pNumber != numbers[0]) {
            if (!value.starts_with(' ')) {
                return false;
            }
            value.remove_prefix(1);
        }
        if (!ReadNumber(value, *pNumber)) {
            return false;
        }
    }
    return value.empty() && window.width > 0 && window.height > 0;
}

bool ReadEntry(std::string_view key, const std::string& value, Layout& layout) {
    CString text;
    if (key == "window") {
        return ReadWindow(value, layout.window);
    }
    if (key == "maximized") {
        layout.isMaximized = value == "1";
        return true;
    }
    if (key == "panes") {
        return FromHex(value, layout.panes);
    }
    if (!ReadText(value, text)) {
        return false;
    }
    if (key == "theme") {
        layout.theme = text;
    } else if (key == "recent") {
        layout.recent.push_back(text);
    } else if (key == "history") {
        layout.history.push_back(text);
    }
    return true;
}

/// Nothing, with a reason, for a text that is no whole layout.
std::optional<Layout> Parse(std::string_view text, Msg& reason) {
    reason = Msg::LayoutIsCut;
    Layout layout;
    bool isFirst = true;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos) {
            return std::nullopt;
        }
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(end + 1);
        if (isFirst) {
            if (line != kVersion) {
                return std::nullopt;
            }
            isFirst = false;
        } else if (line == kEnd) {
            return text.empty() ? std::optional(layout) : std::nullopt;
        } else {
            const std::size_t equals = line.find('=');
            if (equals == std::string_view::npos ||
                !ReadEntry(line.substr(0, equals), std::string(line.substr(equals + 1)), layout)) {
                reason = Msg::LayoutValue;
                return std::nullopt;
            }
        }
    }
    return std::nullopt;
}

std::string Format(const Layout& layout) {
    std::string text = std::string(kVersion) + "\n";
    text +=
        Line("window",
             std::to_string(layout.window.left) + " " + std::to_string(layout.window.top) + " " +
                 std::to_string(layout.window.width) + " " + std::to_string(layout.window.height));
    text += Line("maximized", layout.isMaximized ? "1" : "0");
    text += Line("panes", ToHex(layout.panes));
    text += TextLine("theme", layout.theme);
    for (const CString& name : layout.recent) {
        text += TextLine("recent", name);
    }
    for (const CString& line : layout.history) {
        text += TextLine("history", line);
    }
    return text + std::string(kEnd) + "\n";
}

using Lines = std::vector<CString>;

template <class Value>
void Merge(const Value& base, const Value& theirs, Value& ours) {
    if (ours == base) {
        ours = theirs;
    }
}

Lines JoinedRecent(const Lines& ours, const Lines& theirs) {
    Lines joined = ours;
    std::copy_if(theirs.begin(), theirs.end(), std::back_inserter(joined), [&](const auto& name) {
        return std::find(ours.begin(), ours.end(), name) == ours.end();
    });
    return joined;
}

/// What we added comes last. The oldest lines may have been dropped for it.
Lines JoinedHistory(const Lines& base, const Lines& ours, const Lines& theirs) {
    auto kept = base.begin();
    while (kept != base.end() && (base.end() - kept > static_cast<std::ptrdiff_t>(ours.size()) ||
                                  !std::equal(kept, base.end(), ours.begin()))) {
        ++kept;
    }
    Lines joined = theirs;
    joined.insert(joined.end(), ours.begin() + (base.end() - kept), ours.end());
    if (joined.size() > kMostHistory) {
        joined.erase(joined.begin(), joined.end() - kMostHistory);
    }
    return joined;
}

int Overlap(int from, int length, int otherFrom, int otherLength) {
    return std::min(from + length, otherFrom + otherLength) - std::max(from, otherFrom);
}

/// How far a place is outside of a range.
long long Outside(int at, int from, int length) {
    return std::max(
        {0LL, static_cast<long long>(from) - at, at - (static_cast<long long>(from) + length)});
}

} // namespace

std::optional<Layout> ReadLayout(const CString& path, CString& problem) {
    problem.Empty();
    if (!FileExists(path)) {
        return std::nullopt;
    }
    const std::optional<std::string> text = ReadFileBytes(path);
    if (!text) {
        problem = path + L": " + LastErrorText();
        return std::nullopt;
    }
    Msg reason = Msg::LayoutIsCut;
    std::optional<Layout> layout = Parse(*text, reason);
    if (!layout) {
        problem = Text(Msg::LayoutNotUsed, path, Text(reason));
    }
    return layout;
}

CString WriteLayout(const CString& path, const Layout& layout) {
    return ReplaceFileBytes(path, Format(layout)) ? CString() : path + L": " + LastErrorText();
}

Layout MergedLayout(const Layout& base, const Layout& ours, const Layout& theirs) {
    Layout merged = ours;
    const bool isWindowOurs = ours.window != base.window || ours.isMaximized != base.isMaximized;
    if (!isWindowOurs) {
        merged.window = theirs.window;
        merged.isMaximized = theirs.isMaximized;
    }
    Merge(base.panes, theirs.panes, merged.panes);
    Merge(base.theme, theirs.theme, merged.theme);
    if (ours.recent == base.recent || theirs.recent == base.recent) {
        Merge(base.recent, theirs.recent, merged.recent);
    } else {
        merged.recent = JoinedRecent(ours.recent, theirs.recent);
    }
    if (ours.history == base.history || theirs.history == base.history) {
        Merge(base.history, theirs.history, merged.history);
    } else {
        merged.history = JoinedHistory(base.history, ours.history, theirs.history);
    }
    return merged;
}

ScreenRect OnScreen(const ScreenRect& window, const std::vector<ScreenRect>& workAreas) {
    constexpr int kCatchWidth = 80;
    constexpr int kCatchHeight = 24;
    ScreenRect all = workAreas.empty() ? window : workAreas.front();
    for (const ScreenRect& area : workAreas) {
        const int right = std::max(all.left + all.width, area.left + area.width);
        const int bottom = std::max(all.top + all.height, area.top + area.height);
        all.left = std::min(all.left, area.left);
        all.top = std::min(all.top, area.top);
        all.width = right - all.left;
        all.height = bottom - all.top;
    }
    const bool fits = window.width <= all.width && window.height <= all.height;
    for (const ScreenRect& area : workAreas) {
        const bool isCaught =
            fits &&
            Overlap(window.left, window.width, area.left, area.width) >=
                std::min(kCatchWidth, window.width) &&
            window.top >= area.top &&
            Overlap(window.top, kCatchHeight, area.top, area.height) == kCatchHeight;
        if (isCaught) {
            return window;
        }
    }
    const auto distance = [&](const ScreenRect& area) {
        return Outside(window.left + window.width / 2, area.left, area.width) +
               Outside(window.top + window.height / 2, area.top, area.height);
    };
    const auto nearest = std::min_element(workAreas.begin(), workAreas.end(),
                                          [&](const ScreenRect& left, const ScreenRect& right) {
                                              return distance(left) < distance(right);
                                          });
    if (nearest == workAreas.end()) {
        return window;
    }
    ScreenRect moved = window;
    moved.width = std::min(moved.width, nearest->width);
    moved.height = std::min(moved.height, nearest->height);
    moved.left =
        std::clamp(moved.left, nearest->left, nearest->left + nearest->width - moved.width);
    moved.top = std::clamp(moved.top, nearest->top, nearest->top + nearest->height - moved.height);
    return moved;
}

} // namespace Tessaly
