// Whatever a text says: every link of its index leads where it should, a walk over it ends
// and sees each element once, a copy is the same document, and what is read twice is the
// same both times.
#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "fuzz/XmlIndexCheck.h"
#include "platform/win/CodePage.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlParser.h"

namespace {

using Orvane::XmlDocument;

void Require(bool holds, const char* fault) {
    if (!holds) {
        std::fprintf(stderr, "%s\n", fault);
        std::abort();
    }
}

/// Goes over the documents side by side, without recursion: a text can nest as deep as it
/// is long. Returns the number of elements.
int WalkTogether(XmlDocument& left, XmlDocument& right) {
    int elements = 0;
    int level = 0;
    for (;;) {
        const bool found = left.FindElem();
        Require(right.FindElem() == found, "only one of the documents has the element");
        if (found) {
            ++elements;
            for (const wchar_t* name : {L"id", L"x", L"a[1]"}) {
                Require(left.GetAttrib(name) == right.GetAttrib(name), "attributes differ");
            }
            Require(left.IntoElem() && right.IntoElem(), "an element cannot be entered");
            ++level;
        } else {
            const bool out = left.OutOfElem();
            Require(right.OutOfElem() == out && out == (level > 0), "the levels do not match");
            if (!out) {
                return elements;
            }
            --level;
        }
    }
}

int CheckIndex(std::wstring_view text, bool ignoreCase) {
    Orvane::XmlIndex index;
    index.Reserve(1);
    index[0] = {};
    int posFree = 1;
    const CString error = Orvane::XmlParser(text, index, posFree, ignoreCase).Run();
    const std::string fault = Orvane::XmlIndexCheck(text, index, posFree).Run();
    Require(fault.empty(), fault.c_str());
    const bool illFormed = (index[0].flags & Orvane::XML_FLAG_ILL_FORMED) != 0;
    Require(illFormed != error.IsEmpty(), "an ill-formed text without a message or the reverse");
    return posFree - 1;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::wstring text = Utf8ToWide({reinterpret_cast<const char*>(data), size});
    const bool ignoreCase = size > 0 && (data[size - 1] & 1) != 0;
    CheckIndex(text, ignoreCase);

    text.resize(std::min(text.find(L'\0'), text.size())); // SetDoc takes what comes before a NUL
    const int elements = CheckIndex(text, ignoreCase);

    XmlDocument doc;
    doc.SetDocFlags(ignoreCase ? XmlDocument::kIgnoreCase : 0);
    const bool wellFormed = doc.SetDoc(text.c_str());
    Require(doc.GetDoc().Str() == text, "the text was changed");
    Require(wellFormed == doc.GetError().IsEmpty(), "the result contradicts the message");
    XmlDocument copy(doc);
    Require(WalkTogether(doc, copy) == elements, "the walk missed elements");

    // In the middle of a document a copy takes the cursor along.
    if (XmlDocument again(doc); again.SetDoc(text.c_str()) == wellFormed && again.FindElem()) {
        XmlDocument middle(again);
        Require(middle.GetAttrib(L"id") == again.GetAttrib(L"id"), "the cursor was lost");
        WalkTogether(again, middle);
    } else {
        Require(elements == 0, "another result for the same text");
    }
    return 0;
}
