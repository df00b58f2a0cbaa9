// What all dialogs keep between runs, in a file or in a drawing.
#pragma once

#include "workspacecore/dialogs/DialogState.h"

namespace Orvane {
class XmlDocument;
}

namespace Orvane::Workspace {

/// The live record belongs to the dialog manager. A copy shares the dialogs' states;
/// MakeDeepCopy gives separate ones, which still share the attributes. Main thread only.
class WORKSPACE_API CUiStates {
public:
    using DialogStatePtr = boost::shared_ptr<CDialogState>;
    using DialogStateVector = std::vector<DialogStatePtr>;
    using DialogStateMapById = std::map<CString, DialogStatePtr, CStringLess>;

    CUiStates() = default;
    CUiStates(const CUiStates&) = default;
    CUiStates& operator=(const CUiStates&) = default;
    virtual ~CUiStates() = default;

    /// A second state of the same id is kept and written, but the first one is found.
    void AddDialogState(DialogStatePtr state);
    /// Takes the state off the list, and its id out of the look-up whoever stands there.
    void RemoveDialogState(const DialogStatePtr& state);
    /// Null if there is none; case counts.
    DialogStatePtr GetDialogStateById(const wchar_t* id) const;
    /// Makes a state for a dialog that has none yet.
    DialogStatePtr NeedDialogState(const wchar_t* id);
    DialogStateVector* GetDialogStateVector() { return &m_dialogStateVector; }
    const DialogStateVector* GetDialogStateVector() const { return &m_dialogStateVector; }
    DialogStateMapById* GetDialogStateMapById() { return &m_dialogStateMapById; }
    const DialogStateMapById* GetDialogStateMapById() const { return &m_dialogStateMapById; }
    void Clear();

    CString GetXML() const;
    /// Empties the record and reads it from a text. 0 if the text has no root element.
    int ParseXML(const wchar_t* xml);
    /// 0, and no change, if the file cannot be read or is not well formed; else as ParseXML.
    /// A file that is there and gives 0 gets another name, path + ".damaged-1" and so on, and
    /// a line in the trace: the next Save would replace it.
    int Load(const wchar_t* path);
    /// Replaces the file as a whole. 0, and the file as it was, if the text would not be well
    /// formed or cannot be written.
    int Save(const wchar_t* path) const;
    /// Reads the record that the current drawing keeps. A drawing without one gives 1, and no
    /// change; else as ParseXML.
    int LoadFromDictionary();
    /// Writes the record into the current drawing, as no step of its history. 0 if it cannot.
    int SaveToDictionary() const;
    void MakeDeepCopy(CUiStates& target) const;

private:
    /// The text in ASCII, to which the encoding of fields brings everything.
    std::string Text() const;
    int Read(XmlDocument& document);

    DialogStateVector m_dialogStateVector;
    DialogStateMapById m_dialogStateMapById;
};

} // namespace Orvane::Workspace
