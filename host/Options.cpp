#include "host/Options.h"

#include "platform/win/CodePage.h"

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
    for (std::size_t i = 0; i < arguments.size() && result.error.IsEmpty(); ++i) {
        const std::string& argument = arguments[i];
        if (const ValueOption* option = FindValueOption(argument)) {
            if (i + 1 == arguments.size() || arguments[i + 1].empty()) {
                result.error.Format(L"%s wants a value", argument);
            } else {
                option->store(result.options, Utf8ToWide(arguments[++i]));
            }
        } else if (argument == "--console") {
            result.options.console = true;
        } else if (argument == "--help" || argument == "-h") {
            result.options.help = true;
        } else if (argument.empty() || argument.front() == '-') {
            result.error.Format(L"%s: no such option", argument);
        } else if (!result.options.drawing.IsEmpty()) {
            result.error.Format(L"%s: only one drawing can be named", argument);
        } else {
            result.options.drawing = Utf8ToWide(argument);
        }
    }
    const std::optional<CString>& theme = result.options.theme;
    if (result.error.IsEmpty() && theme && *theme != L"light" && *theme != L"dark") {
        result.error.Format(L"--theme %s: it can be light or dark", *theme);
    }
    return result;
}

const wchar_t* UsageText() {
    return L"tessaly [--console] [options] [drawing]\n"
           L"  drawing         a GeoPackage (.gpkg) to open at the start\n"
           L"  --console       the command line on standard input and output\n"
           L"  --script FILE   runs the commands of a file, one a line, and ends; the exit\n"
           L"                  status is that of the first command that fails\n"
           L"  --first FILE    runs the commands of a file, then goes on at the prompt\n"
           L"  --snapshot FILE draws the desktop into a picture, without a display, and ends\n"
           L"  --transcript FILE  writes what the desktop's command line shows to a file\n"
           L"  --theme NAME    light or dark, whatever the system's is\n"
           L"  --trace FILE    writes the developer's trace to a file\n"
           L"  --support DIR   the folder of the user's settings\n"
           L"  --install DIR   the folder of the modules\n";
}

} // namespace Tessaly
