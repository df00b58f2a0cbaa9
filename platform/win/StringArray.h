// An array of texts for use in interfaces.
#pragma once

#include <vector>

#include "platform/win/String.h"

class CStringArray {
public:
    int GetCount() const { return static_cast<int>(m_texts.size()); }
    bool IsEmpty() const { return m_texts.empty(); }
    const CString& GetAt(int index) const { return m_texts[static_cast<std::size_t>(index)]; }
    const CString& operator[](int index) const { return GetAt(index); }
    int Add(CString text) {
        m_texts.push_back(std::move(text));
        return GetCount() - 1;
    }
    void RemoveAll() { m_texts.clear(); }

private:
    std::vector<CString> m_texts;
};
