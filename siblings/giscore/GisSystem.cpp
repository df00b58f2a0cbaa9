#include "siblings/giscore/GisSystem.h"

#include <random>

#include "siblings/giscore/GisSystems.h"

namespace Orvane::System {

namespace {

/// A random one of the usual form (variant 1, version 4).
CString NewGuid() {
    static std::random_device source;
    unsigned int words[4];
    for (unsigned int& word : words) {
        word = source();
    }
    words[1] = (words[1] & 0xFFFF0FFFU) | 0x4000U;
    words[2] = (words[2] & 0x3FFFFFFFU) | 0x80000000U;
    CString text;
    text.Format(L"%08X-%04X-%04X-%04X-%04X%08X", words[0], words[1] >> 16, words[1] & 0xFFFFU,
                words[2] >> 16, words[2] & 0xFFFFU, words[3]);
    return text;
}

} // namespace

CGisSystem::CGisSystem(CGisSystems& owner, int id, const CString& name, enmTopologyType type,
                       int function)
    : m_owner(owner), m_nId(id), m_strName(name), m_strGuid(NewGuid()), m_enmTopologyType(type),
      m_nFunction(function) {}

int CGisSystem::GetActive() const {
    return m_owner.GetActiveSystem() == this;
}

AcDbDatabase* CGisSystem::GetDatabase() const {
    return m_owner.GetDatabase();
}

} // namespace Orvane::System
