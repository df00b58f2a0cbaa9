#include "siblings/giscore/systems/GisSystems.h"

#include <algorithm>

#include "platform/arx/DbReferences.h"
#include "platform/arx/DbUndoScopes.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/systems/DrawingRecords.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/Guid.h"
#include "siblings/giscore/utility/WholeNumber.h"

namespace Orvane::System {

namespace {

constexpr const wchar_t* kSystems = AcDbReferences::kSystems.data();
constexpr const wchar_t* kLastId = AcDbReferences::kLastSystem.data();
constexpr const wchar_t* kActive = AcDbReferences::kActiveSystem.data();
constexpr const wchar_t* kCounter = AcDbReferences::kSystemCounter.data();

constexpr const wchar_t* kSystemPrefix = AcDbReferences::kSystemDictionary.data();
constexpr const wchar_t* kGuid = AcDbReferences::kDrawingGuid.data();
constexpr const wchar_t* kName = AcDbReferences::kSystemName.data();
constexpr const wchar_t* kTopology = L"TOPOLOGY";
constexpr const wchar_t* kFunction = L"FUNCTION";
constexpr const wchar_t* kVisible = L"VISIBLE";
constexpr const wchar_t* kCoordinateSystem = L"SRS";
constexpr const wchar_t* kLayer = L"LAYER.";

template <class Test>
CGisSystem* FindIf(const std::vector<std::unique_ptr<CGisSystem>>& systems, Test test) {
    for (const auto& system : systems) {
        if (test(*system)) {
            return system.get();
        }
    }
    return nullptr;
}

DrawingRecords RecordsOf(AcDbDatabase& database, int id) {
    return {database, FormatText(L"%s%d", kSystemPrefix, id)};
}

/// Changes with the items stored with a system.
std::size_t ItemStampOf(const AcDbDictionary& dictionary) {
    std::size_t stamp = 0;
    for (const auto& [record, text] : dictionary.records()) {
        if (record.View().starts_with(kItemPrefix)) {
            const std::hash<std::wstring_view> hash;
            stamp = stamp * 31 + hash(record.View()) * 7 + hash(text.View());
        }
    }
    return stamp;
}

DrawingRecords SharedRecords(AcDbDatabase& database) {
    return {database, kSystems};
}

CString CounterPrefix(int id) {
    return FormatText(L"%s%d.", kCounter, id);
}

/// The remainder after a prefix; nullopt if the text does not start with it.
std::optional<CString> Behind(const CString& text, const CString& prefix) {
    return text.Left(prefix.GetLength()) == prefix ? std::optional(text.Mid(prefix.GetLength()))
                                                   : std::nullopt;
}

/// Everything stored for a system except its visibility, for comparison.
CString ContentOf(const CGisSystem& system) {
    CString text;
    text.Format(L"%s\n%s\n%d %d\n%s\n", system.GetSystemName(), system.GetGuid(),
                system.GetTopologyType(), system.GetSystemFunction(), system.GetCoordinateSystem());
    text.AppendFormat(L"%x\n", system.GetItemStamp());
    for (const CGisSystemLayer& layer : system.GetLayers()) {
        text.AppendFormat(L"%s %s\n", layer.GetReference(), layer.GetLayerName());
    }
    return text;
}

template <class... Params, class... Args>
void Tell(void (ISystemEvents::*event)(Params...), Args... args) {
    CGisEvents::Instance()->Raise(event, args...);
}

} // namespace

/// While alive, changes to the dictionaries are our own and need not be read back.
class CGisSystems::OwnChange {
public:
    explicit OwnChange(CGisSystems& systems) : m_systems(systems) { ++m_systems.m_nOwnChanges; }
    ~OwnChange() { --m_systems.m_nOwnChanges; }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;

private:
    CGisSystems& m_systems;
};

DrawingRecords CGisSystem::GetRecords() const {
    return RecordsOf(*GetDatabase(), m_nId);
}

CGisSystems::CGisSystems(AcDbDatabase* pDatabase) : m_pDatabase(pDatabase) {
    m_pDatabase->addReactor(this);
    Load();
}

CGisSystems::~CGisSystems() {
    if (m_pDatabase) {
        m_pDatabase->removeReactor(this);
    }
}

std::vector<CGisSystem*> CGisSystems::GetSystemList() const {
    std::vector<CGisSystem*> list;
    list.reserve(m_systems.size());
    for (const auto& system : m_systems) {
        list.push_back(system.get());
    }
    return list;
}

CGisSystem* CGisSystems::GetSystemById(int id) const {
    return FindIf(m_systems, [id](const CGisSystem& system) { return system.GetSystemId() == id; });
}

CGisSystem* CGisSystems::GetSystemByGuid(const wchar_t* guid) const {
    return FindIf(m_systems, [guid](const CGisSystem& system) {
        return system.GetGuid().CompareNoCase(guid) == 0;
    });
}

CGisSystem* CGisSystems::GetSystemByName(const wchar_t* name) const {
    return FindIf(m_systems, [name](const CGisSystem& system) {
        return system.GetSystemName().CompareNoCase(name) == 0;
    });
}

void CGisSystems::Load() {
    m_systems.clear();
    m_pActive = nullptr;
    ++m_nRosterStamp;
    for (const AcDbObjectId id : m_pDatabase->dictionaries()) {
        if (const int systemId = IdOf(*m_pDatabase->peek(id))) {
            Read(Insert(systemId));
        }
    }
    m_pActive = GetSystemById(SharedRecords(*m_pDatabase).GetInt(kActive, 0));
    m_strDrawingGuid = SharedRecords(*m_pDatabase).Get(kGuid);
}

int CGisSystems::IdOf(const AcDbObject& object) const {
    if (object.isA() != AcDbDictionary::desc()) {
        return 0;
    }
    const auto number = Behind(static_cast<const AcDbDictionary&>(object).name(), kSystemPrefix);
    const int id = number ? WholeNumber(number->View()).value_or(0) : 0;
    // Reject other spellings of the number ("01"): a system has exactly one dictionary.
    return id > 0 && *number == FormatText(L"%d", id) ? id : 0;
}

CGisSystem& CGisSystems::Insert(int id) {
    ++m_nRosterStamp;
    const auto place = std::find_if(m_systems.begin(), m_systems.end(), [id](const auto& system) {
        return system->GetSystemId() > id;
    });
    return **m_systems.insert(place, std::unique_ptr<CGisSystem>(new CGisSystem(*this, id)));
}

void CGisSystems::Read(CGisSystem& system) const {
    const DrawingRecords records = RecordsOf(*m_pDatabase, system.m_nId);
    system.m_strGuid = records.Get(kGuid);
    system.m_strName = records.Get(kName);
    system.m_enmTopologyType = static_cast<enmTopologyType>(records.GetInt(kTopology, 0));
    system.m_nFunction = records.GetInt(kFunction, 0);
    system.m_bVisible = records.GetInt(kVisible, 1) != 0;
    system.m_strCoordinateSystem = records.Get(kCoordinateSystem);
    system.m_layers.clear();
    if (const AcDbDictionary* const pDictionary = records.Dictionary()) {
        system.m_nItemStamp = ItemStampOf(*pDictionary);
        for (const auto& [record, text] : pDictionary->records()) {
            if (const auto reference = Behind(record, kLayer)) {
                system.m_layers.emplace_back(*m_pDatabase, *reference, text);
            }
        }
    }
    ReadCounters(system);
}

void CGisSystems::ReadCounters(CGisSystem& system) const {
    const CString prefix = CounterPrefix(system.m_nId);
    if (const AcDbDictionary* const pShared = SharedRecords(*m_pDatabase).Dictionary()) {
        for (const auto& [record, text] : pShared->records()) {
            const auto counter = Behind(record, prefix);
            const auto value = WholeNumber(text.View());
            if (counter && value) {
                // A counter in memory is at least as recent as the saved one.
                system.m_counters.try_emplace(*counter, *value);
            }
        }
    }
}

void CGisSystems::Store(const CGisSystem& system) {
    const OwnChange own(*this);
    DrawingRecords records = RecordsOf(*m_pDatabase, system.m_nId);
    records.Set(kGuid, system.m_strGuid);
    records.Set(kName, system.m_strName);
    records.Set(kTopology, system.m_enmTopologyType);
    records.Set(kFunction, system.m_nFunction);
    records.Set(kVisible, system.m_bVisible);
    if (!system.m_strCoordinateSystem.IsEmpty() || !records.Get(kCoordinateSystem).IsEmpty()) {
        records.Set(kCoordinateSystem, system.m_strCoordinateSystem);
    }
    for (const CGisSystemLayer& layer : system.m_layers) {
        records.Set(kLayer + layer.GetReference(), layer.GetLayerName());
    }
}

void CGisSystems::StoreState() {
    const AcDbUndoPause pause(*m_pDatabase);
    const OwnChange own(*this);
    DrawingRecords shared = SharedRecords(*m_pDatabase);
    if (!m_systems.empty() || shared.Dictionary()) {
        shared.Set(kActive, m_pActive ? m_pActive->GetSystemId() : 0);
    }
    DropOldCounters();
    for (const auto& system : m_systems) {
        for (const auto& [name, value] : system->m_counters) {
            shared.Set(CounterPrefix(system->m_nId) + name, value);
        }
    }
}

void CGisSystems::DropOldCounters() {
    // Remove records of deleted systems, which cannot return once the drawing is closed.
    DrawingRecords shared = SharedRecords(*m_pDatabase);
    std::vector<CString> old;
    if (const AcDbDictionary* const pShared = shared.Dictionary()) {
        for (const auto& [record, text] : pShared->records()) {
            const auto counter = Behind(record, kCounter);
            const bool isOld =
                counter &&
                !GetSystemById(WholeNumber(counter->Left(counter->Find(L'.')).View()).value_or(0));
            if (isOld) {
                old.push_back(record);
            }
        }
    }
    for (const CString& record : old) {
        shared.Remove(record);
    }
}

void CGisSystems::MakeDrawingGuid() {
    if (m_strDrawingGuid.IsEmpty()) {
        m_strDrawingGuid = NewGuid();
        SharedRecords(*m_pDatabase).Set(kGuid, m_strDrawingGuid);
    }
}

CGisSystem& CGisSystems::Add(const CString& name, enmTopologyType type, int function) {
    DrawingRecords shared = SharedRecords(*m_pDatabase);
    const int highest = m_systems.empty() ? 0 : m_systems.back()->m_nId;
    const int id = std::max(shared.GetInt(kLastId, 0), highest) + 1;
    {
        // Outside the undo history, so that an id is never reused.
        const AcDbUndoPause pause(*m_pDatabase);
        const OwnChange own(*this);
        shared.Set(kLastId, id);
        MakeDrawingGuid();
    }
    const AcDbUndoGroup group(*m_pDatabase, name);
    CGisSystem& system = Insert(id);
    system.m_strName = name;
    system.m_strGuid = NewGuid();
    system.m_enmTopologyType = type;
    system.m_nFunction = function;
    CreateMissingLayers(system);
    Store(system);
    Tell(&ISystemEvents::OnNewSystemCreated, &system);
    return system;
}

void CGisSystems::Remove(CGisSystem& system) {
    const AcDbUndoGroup group(*m_pDatabase, system.m_strName);
    Tell(&ISystemEvents::OnBeforeSystemDelete, &system);
    Park(system);
    if (m_pActive == &system) {
        SetActive(nullptr);
    }
    Tell(&ISystemEvents::OnDropSystemContent, &system);
    const OwnChange own(*this);
    RecordsOf(*m_pDatabase, system.m_nId).Erase();
    for (const CGisSystemLayer& layer : system.m_layers) {
        // Fails for a layer that still holds other entities, which stays.
        AcDbLayerTableRecord* pLayer = nullptr;
        if (acdbOpenObject(pLayer, layer.GetLayerId(), AcDb::kForWrite, false, m_pDatabase) ==
            Acad::eOk) {
            pLayer->erase();
            pLayer->close();
        }
    }
    ++m_nRosterStamp;
    std::erase_if(m_systems, [&](const auto& entry) { return entry.get() == &system; });
    Tell(&ISystemEvents::OnAfterSystemDelete);
}

void CGisSystems::Rename(CGisSystem& system, const CString& name) {
    if (system.m_strName != name) {
        const AcDbUndoGroup group(*m_pDatabase, name);
        system.m_strName = name;
        Store(system);
        Tell(&ISystemEvents::OnSystemChanged, &system);
    }
}

void CGisSystems::SetActive(CGisSystem* pSystem) {
    CGisSystem* const pOld = m_pActive;
    if (pOld == pSystem) {
        return;
    }
    m_pActive = pSystem;
    if (acdbHostApplicationServices()->workingDatabase() != m_pDatabase) {
        return; // sent when the drawing becomes current
    }
    if (pOld) {
        Tell(&ISystemEvents::OnSystemBecomeInactive, pOld);
    }
    // An observer may have activated yet another system, which raised its own event.
    if (m_pActive == pSystem) {
        Tell(&ISystemEvents::OnSystemBecomeActive, pSystem);
    }
}

int CGisSystems::UpgradeSystems() {
    int upgraded = 0;
    const AcDbUndoPause pause(*m_pDatabase);
    if (!m_systems.empty()) {
        MakeDrawingGuid();
    }
    for (const auto& system : m_systems) {
        CString name = system->m_strName;
        CString guid = system->m_strGuid;
        if (name.IsEmpty()) {
            name = MessageText(GisMsg::SystemWithoutName, system->m_nId);
        }
        const CString plain = name;
        for (int number = 2;; ++number) {
            const CGisSystem* const pOther = GetSystemByName(name);
            if (!pOther || pOther->m_nId >= system->m_nId) {
                break;
            }
            name.Format(L"%s (%d)", plain, number);
        }
        if (guid.IsEmpty() || GetSystemByGuid(guid) != system.get()) {
            guid = NewGuid();
        }
        if (name != system->m_strName || guid != system->m_strGuid) {
            system->m_strName = name;
            system->m_strGuid = guid;
            Store(*system);
            Tell(&ISystemEvents::OnSystemChanged, system.get());
            ++upgraded;
        }
    }
    return upgraded;
}

void CGisSystems::objectModified(const AcDbDatabase*, const AcDbObject* pObject) {
    CGisSystem* const pSystem = m_nOwnChanges == 0 ? GetSystemById(IdOf(*pObject)) : nullptr;
    if (pSystem) {
        const int wasVisible = pSystem->m_bVisible;
        const CString before = ContentOf(*pSystem);
        Read(*pSystem);
        if (wasVisible != pSystem->m_bVisible) {
            Tell(wasVisible ? &ISystemEvents::OnSystemBecomeHidden
                            : &ISystemEvents::OnSystemBecomeShown,
                 pSystem);
        }
        if (before != ContentOf(*pSystem)) {
            Tell(&ISystemEvents::OnSystemChanged, pSystem);
        }
    }
}

void CGisSystems::objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool bErased) {
    const int id = m_nOwnChanges == 0 ? IdOf(*pObject) : 0;
    CGisSystem* const pSystem = id ? GetSystemById(id) : nullptr;
    if (pSystem && bErased) {
        Drop(*pSystem);
    } else if (id && !pSystem && !bErased) {
        CGisSystem& system = Insert(id);
        Read(system);
        const auto parked = m_parked.find(id);
        const bool wasActive = parked != m_parked.end() && parked->second.wasActive;
        if (parked != m_parked.end()) {
            system.m_counters = std::move(parked->second.counters);
            m_parked.erase(parked);
        }
        Tell(&ISystemEvents::OnNewSystemCreated, &system);
        if (wasActive && !m_pActive) {
            SetActive(&system);
        }
    }
}

void CGisSystems::Park(const CGisSystem& system) {
    m_parked[system.m_nId] = {system.m_counters, m_pActive == &system};
}

void CGisSystems::goodbye(const AcDbDatabase*) {
    m_pDatabase = nullptr;
    for (const auto& system : m_systems) {
        system->m_layers.clear();
    }
}

void CGisSystems::Drop(CGisSystem& system) {
    Tell(&ISystemEvents::OnBeforeSystemDelete, &system);
    Park(system);
    if (m_pActive == &system) {
        SetActive(nullptr);
    }
    ++m_nRosterStamp;
    std::erase_if(m_systems, [&](const auto& entry) { return entry.get() == &system; });
    Tell(&ISystemEvents::OnAfterSystemDelete);
}

void CGisSystems::databaseReplaced(const AcDbDatabase*) {
    Load();
}

} // namespace Orvane::System
