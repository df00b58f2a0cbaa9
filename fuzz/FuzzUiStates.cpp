// The dialog states read from any text can be written and read again one by one, and every value
// has a box.
#include <cstdlib>

#include "platform/win/CodePage.h"
#include "workspacecore/dialogs/UiStates.h"

namespace {

using Orvane::Workspace::CUiStates;

void Expect(bool bHolds) {
    if (!bHolds) {
        std::abort();
    }
}

/// Values may change once, since references are kept by writing and resolved by reading; numbers
/// and all counts may not.
void Compare(const CUiStates& before, const CUiStates& after) {
    const auto& dialogs = *before.GetDialogStateVector();
    Expect(after.GetDialogStateVector()->size() == dialogs.size());
    for (std::size_t i = 0; i < dialogs.size(); ++i) {
        const auto& read = *(*after.GetDialogStateVector())[i];
        Expect(read.GetTop() == dialogs[i]->GetTop() && read.GetSide() == dialogs[i]->GetSide());
        const auto& attributes = *dialogs[i]->GetStateAttributeVector();
        Expect(read.GetStateAttributeVector()->size() == attributes.size());
        for (std::size_t k = 0; k < attributes.size(); ++k) {
            const int type = (*read.GetStateAttributeVector())[k]->GetType();
            const int boxType = attributes[k]->GetDataBox().GetDataType();
            Expect(type == attributes[k]->GetType() && (boxType == type || boxType == 0));
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::wstring text = Utf8ToWide({reinterpret_cast<const char*>(data), size});
    CUiStates states;
    Expect(states.ParseXML(text.c_str()) || states.GetDialogStateVector()->empty());
    CUiStates again;
    Expect(again.ParseXML(states.GetXML()) == 1);
    Compare(states, again);
    return 0;
}
