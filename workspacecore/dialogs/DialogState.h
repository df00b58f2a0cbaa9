// The position and values of a dialog that persist between runs.
#pragma once

#include <boost/shared_ptr.hpp>
#include <map>
#include <vector>

#include "workspacecore/dialogs/StateAttribute.h"

namespace Orvane::Workspace {

/// In screen pixels; all zero for a dialog that was never placed. Copies share the attributes;
/// MakeDeepCopy creates separate ones.
class WORKSPACE_API CDialogState {
public:
    using AttributePtr = boost::shared_ptr<CStateAttribute>;
    using AttributeVector = std::vector<AttributePtr>;
    using AttributeMapById = std::map<CString, AttributePtr, CStringLess>;

    CDialogState() = default;
    CDialogState(const CDialogState&) = default;
    CDialogState& operator=(const CDialogState&) = default;
    virtual ~CDialogState() = default;

    CString GetId() const { return m_strId; }
    void SetId(const wchar_t* id) { m_strId = id; }
    int GetTop() const { return m_nTop; }
    void SetTop(int top) { m_nTop = top; }
    int GetLeft() const { return m_nLeft; }
    void SetLeft(int left) { m_nLeft = left; }
    int GetWidth() const { return m_nWidth; }
    void SetWidth(int width) { m_nWidth = width; }
    int GetHeight() const { return m_nHeight; }
    void SetHeight(int height) { m_nHeight = height; }
    /// Non-zero if the size is restored, too.
    int GetResizable() const { return m_nResizable; }
    void SetResizable(int resizable) { m_nResizable = resizable; }
    int GetDocked() const { return m_nDocked; }
    void SetDocked(int docked) { m_nDocked = docked; }
    int GetSide() const { return m_nSide; }
    void SetSide(int side) { m_nSide = side; }

    /// A second attribute with the same id is kept and written, but look-up finds the first.
    void AddStateAttribute(AttributePtr attribute);
    /// Removes the attribute from the list, and whichever attribute has its id from the look-up.
    void RemoveStateAttribute(const AttributePtr& attribute);
    /// Null if there is none; case-sensitive.
    AttributePtr GetStateAttributeById(const wchar_t* id) const;
    AttributeVector* GetStateAttributeVector() { return &m_stateAttributeVector; }
    const AttributeVector* GetStateAttributeVector() const { return &m_stateAttributeVector; }
    AttributeMapById* GetStateAttributeMapById() { return &m_stateAttributeMapById; }
    const AttributeMapById* GetStateAttributeMapById() const { return &m_stateAttributeMapById; }

    CString GetXML() const;
    void MakeDeepCopy(CDialogState& target) const;

private:
    friend class CUiStates;

    void AppendXML(std::string& xml) const;

    CString m_strId;
    int m_nTop = 0;
    int m_nLeft = 0;
    int m_nWidth = 0;
    int m_nHeight = 0;
    int m_nResizable = 0;
    int m_nDocked = 0;
    int m_nSide = 0;
    AttributeVector m_stateAttributeVector;
    AttributeMapById m_stateAttributeMapById;
};

} // namespace Orvane::Workspace
