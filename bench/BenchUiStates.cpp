// Loads and saves the states of 1,000 dialogs with 20 values each, compared with pugixml reading
// and writing records of the same shape. Both replace the file safely; the disk's share of that is
// shown separately. Prints the best and the median time of each.
//
//   BenchUiStates [dialogs [values]]
#include <algorithm>
#include <boost/make_shared.hpp>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win/CodePage.h"
#include "platform/win/File.h"
#include "workspacecore/dialogs/UiStates.h"

namespace {

using namespace Orvane;
using namespace Orvane::Workspace;

CUiStates MakeStates(int dialogs, int values) {
    CUiStates states;
    for (int i = 0; i < dialogs; ++i) {
        const auto dialog = boost::make_shared<CDialogState>();
        dialog->SetId(FormatText(L"ORVZ.Dialog.%d", i).c_str());
        dialog->SetLeft(i % 777);
        dialog->SetTop(-i % 1000);
        dialog->SetWidth(640);
        dialog->SetHeight(480);
        for (int k = 0; k < values; ++k) {
            // Widths, combo box selections, names with and without characters that need encoding.
            const Data::CDataBox boxes[] = {i * k % 500, 0.25 * i, L"Main Street North",
                                            L"width = 12; Stra\u00DFe & more"};
            dialog->AddStateAttribute(boost::make_shared<CStateAttribute>(
                FormatText(L"column.%d", k).c_str(), boxes[k % std::size(boxes)]));
        }
        states.AddDialogState(dialog);
    }
    return states;
}

/// The peer's records: the same content without field encoding.
struct PeerAttribute {
    std::string id;
    int type = 0;
    std::string value;
};

struct PeerDialog {
    std::string id;
    int numbers[7] = {};
    std::vector<std::shared_ptr<PeerAttribute>> attributes;
    std::map<std::string, std::shared_ptr<PeerAttribute>> attributesById;
};

struct PeerStates {
    std::vector<std::shared_ptr<PeerDialog>> dialogs;
    std::map<std::string, std::shared_ptr<PeerDialog>> dialogsById;
};

constexpr const char* kNumbers[] = {"top",       "left",   "width", "height",
                                    "resizable", "docked", "side"};

bool Load(const std::string& path, PeerStates& states) {
    pugi::xml_document document;
    if (!document.load_file(path.c_str())) {
        return false;
    }
    for (const pugi::xml_node node : document.child("uiStates").children("dialogState")) {
        auto dialog = std::make_shared<PeerDialog>();
        dialog->id = node.attribute("id").value();
        for (std::size_t i = 0; i < std::size(kNumbers); ++i) {
            dialog->numbers[i] = node.attribute(kNumbers[i]).as_int();
        }
        for (const pugi::xml_node child : node.children("stateAttribute")) {
            auto attribute = std::make_shared<PeerAttribute>();
            attribute->id = child.attribute("id").value();
            attribute->type = child.attribute("type").as_int();
            attribute->value = child.attribute("value").value();
            dialog->attributes.push_back(attribute);
            dialog->attributesById.emplace(attribute->id, attribute);
        }
        states.dialogs.push_back(dialog);
        states.dialogsById.emplace(dialog->id, dialog);
    }
    return true;
}

struct TextWriter final : pugi::xml_writer {
    void write(const void* data, std::size_t size) override {
        text.append(static_cast<const char*>(data), size);
    }
    std::string text;
};

bool Save(const std::wstring& path, const PeerStates& states) {
    pugi::xml_document document;
    pugi::xml_node root = document.append_child("uiStates");
    for (const auto& dialog : states.dialogs) {
        pugi::xml_node node = root.append_child("dialogState");
        node.append_attribute("id") = dialog->id.c_str();
        for (std::size_t i = 0; i < std::size(kNumbers); ++i) {
            node.append_attribute(kNumbers[i]) = dialog->numbers[i];
        }
        for (const auto& attribute : dialog->attributes) {
            pugi::xml_node child = node.append_child("stateAttribute");
            child.append_attribute("id") = attribute->id.c_str();
            child.append_attribute("type") = attribute->type;
            child.append_attribute("value") = attribute->value.c_str();
        }
    }
    TextWriter writer;
    document.save(writer, "", pugi::format_raw | pugi::format_no_declaration);
    return ReplaceFileBytes(path.c_str(), writer.text);
}

struct Work {
    const char* name;
    std::function<bool()> run;
    std::vector<double> milliseconds = {};
};

double Milliseconds(const std::function<bool()>& work) {
    const auto start = std::chrono::steady_clock::now();
    if (!work()) {
        std::fprintf(stderr, "a run failed\n");
        std::exit(1);
    }
    const std::chrono::duration<double, std::milli> spent =
        std::chrono::steady_clock::now() - start;
    return spent.count();
}

void Print(std::vector<Work>& works) {
    std::printf("%-34s %10s %10s\n", "", "best ms", "median ms");
    for (Work& work : works) {
        std::sort(work.milliseconds.begin(), work.milliseconds.end());
        std::printf("%-34s %10.2f %10.2f\n", work.name, work.milliseconds.front(),
                    work.milliseconds[work.milliseconds.size() / 2]);
    }
}

} // namespace

int main(int argc, char** argv) {
    const int dialogs = argc > 1 ? std::atoi(argv[1]) : 1000;
    const int values = argc > 2 ? std::atoi(argv[2]) : 20;
    const CUiStates states = MakeStates(dialogs, values);
    const auto folder = std::filesystem::temp_directory_path();
    const std::string ownPath = (folder / "BenchUiStates.xml").string();
    const std::wstring ownWide = Utf8ToWide(ownPath);
    const std::wstring otherWide = Utf8ToWide((folder / "BenchUiStates.other.xml").string());
    if (!states.Save(ownWide.c_str())) {
        std::fprintf(stderr, "cannot write %s\n", ownPath.c_str());
        return 1;
    }
    const std::string bytes = ReadFileBytes(ownWide.c_str()).value_or(std::string());

    // Kept between runs: destroying the previous records is not measured.
    std::deque<CUiStates> own;
    std::deque<PeerStates> peers;
    std::vector<Work> works = {
        {"load, CUiStates", [&] { return own.emplace_back().Load(ownWide.c_str()) == 1; }},
        {"load, pugixml", [&] { return Load(ownPath, peers.emplace_back()); }},
        {"save, CUiStates", [&] { return states.Save(ownWide.c_str()) == 1; }},
        {"save, pugixml", [&] { return Save(otherWide, peers.front()); }},
        {"of which replacing the file", [&] { return ReplaceFileBytes(otherWide.c_str(), bytes); }},
    };
    // Alternating, so that other load on the machine does not affect only one of them.
    for (int run = 0; run < 25; ++run) {
        for (Work& work : works) {
            work.milliseconds.push_back(Milliseconds(work.run));
        }
    }
    std::printf("%d dialogs, %d values each, %.2f MB\n", dialogs, values,
                static_cast<double>(bytes.size()) / 1e6);
    Print(works);
    const bool same = own.front().GetXML() == states.GetXML() &&
                      peers.front().dialogs.size() == states.GetDialogStateVector()->size();
    std::filesystem::remove(ownPath);
    std::filesystem::remove(folder / "BenchUiStates.other.xml");
    if (!same) {
        std::fprintf(stderr, "the loaded states differ from the saved ones\n");
        return 1;
    }
    return 0;
}
