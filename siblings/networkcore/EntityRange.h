// Iteration over entities of one kind.
#pragma once

#include <cstddef>
#include <span>

#include "siblings/networkcore/TopologyTypes.h"

namespace Orvane::Topology {

class CTopologyStorage;

/// Entities in the order of their ids, i.e. of creation, as accessors by value. Valid until
/// entities are added or removed.
template <class Accessor>
class EntityRange {
public:
    class Iterator {
    public:
        Iterator(const CTopologyStorage* pStorage, const AcDbObjectId* pId)
            : m_pStorage(pStorage), m_pId(pId) {}
        Accessor operator*() const { return Accessor(m_pStorage, *m_pId); }
        Iterator& operator++() {
            ++m_pId;
            return *this;
        }
        bool operator==(const Iterator& other) const { return m_pId == other.m_pId; }

    private:
        const CTopologyStorage* m_pStorage;
        const AcDbObjectId* m_pId;
    };

    EntityRange(const CTopologyStorage* pStorage, std::span<const AcDbObjectId> ids)
        : m_pStorage(pStorage), m_ids(ids) {}

    Iterator begin() const { return {m_pStorage, m_ids.data()}; }
    Iterator end() const { return {m_pStorage, m_ids.data() + m_ids.size()}; }
    std::size_t size() const { return m_ids.size(); }
    bool empty() const { return m_ids.empty(); }
    Accessor operator[](std::size_t index) const { return Accessor(m_pStorage, m_ids[index]); }
    std::span<const AcDbObjectId> Ids() const { return m_ids; }

private:
    const CTopologyStorage* m_pStorage;
    std::span<const AcDbObjectId> m_ids;
};

} // namespace Orvane::Topology
