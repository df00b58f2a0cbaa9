#include "host/Options.h"

#include "platform/win/CodePage.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

struct ValueOption {
    const char* name;
    void (*store)(Options&, CString);
};

constexpr ValueOption kValueOptions[] = {
    {"--script", [](Options& options, CString value) { options.script = value; }},
    {"--first", [](Options& options, CString value) { options.first = value; }},
    {"--snapshot", [](Options& options, CString value) { options.snapshot = value; }},
    {"--transcript", [](Options& options, CString value) { options.transcript = value; }},
    {"--theme", [](Options& options, CString value) { options.theme = value; }},
    {"--trace", [](Options& options, CString value) { options.trace = value; }},
    {"--support", [](Options& options, CString value) { options.support = value; }},
    {"--install", [](Options& options, CString value) { options.install = value; }},
};

const ValueOption* FindValueOption(const std::string& name) {
    for (const ValueOption& option : kValueOptions) {
        if (name == option.name) {
            return &option;
        }
    }
    return nullptr;
}

} // namespace

OptionsResult ReadOptions(const std::vector<std::string>& arguments) {
    OptionsResult result;
    const auto complain = [&result](Msg problem, const CString& argument) {
        if (!result.problem) {
            result.problem = problem;
            result.argument = argument;
        }
    };
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (const ValueOption* option = FindValueOption(argument)) {
            if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
                complain(Msg::OptionNeedsValue, Utf8ToWide(argument));
            } else {
                option->store(result.options, WidePath(arguments[++i]));
            }
        } else if (argument == "--console") {
            result.options.console = true;
        } else if (argument == "--read-only") {
            result.options.readOnly = true;
        } else if (argument == "--help" || argument == "-h") {
            result.options.help = true;
        } else if (argument.empty() || argument.front() == '-') {
            complain(Msg::UnknownOption, Utf8ToWide(argument));
        } else if (!result.options.drawing.IsEmpty()) {
            complain(Msg::OneDrawingOnly, Utf8ToWide(argument));
        } else {
            result.options.drawing = WidePath(argument);
        }
    }
    const std::optional<CString>& theme = result.options.theme;
    if (theme && *theme != L"light" && *theme != L"dark") {
        complain(Msg::NoSuchTheme, *theme);
    }
    return result;
}

} // namespace Tessaly
