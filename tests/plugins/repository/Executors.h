// A drawing for tests of configuration commands, driven by hand-made tree nodes.
#pragma once

#include <boost/make_shared.hpp>

#include "host/storage/OpenAndSave.h"
#include "platform/arx/CommandRunner.h"
#include "platform/arx/DbUndo.h"
#include "plugins/repository/LabelFamily.h"
#include "plugins/repository/RepositoryExecutor.h"
#include "plugins/repository/RepositoryFamilies.h"
#include "plugins/repository/SystemExecutor.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/notification/Subscriber.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/repository/RepositoryStore.h"
#include "siblings/giscoreadds/SelectionSet.h"
#include "tests/support/TestDrawing.h"
#include "workspacecore/core/WsManager.h"
#include "workspacecore/tree/ItemArgument.h"

using namespace Orvane;
using namespace Orvane::Repository;
using Workspace::CWsTreeItemData;
using Workspace::ItemArgument;

inline constexpr const wchar_t* kEscape = L"\x1B";

/// Counts a publisher's notifications.
class Counter final : public Notification::CSubscriber {
public:
    explicit Counter(const wchar_t* publisher) {
        Notification::CNotificationFramework::Instance()
            ->GetPublisher(publisher)
            ->RegisterSubscriber(this);
    }
    ~Counter() override { Notification::CNotificationFramework::UnregisterSubscriber(this); }
    Counter(const Counter&) = delete;
    Counter& operator=(const Counter&) = delete;
    void Update(Notification::CPublisher*, void* pHint, void*) override {
        ++count;
        pLast = pHint;
    }
    int count = 0;
    void* pLast = nullptr;
};

/// Three nodes in a row, connected by sections with diameters 100 and 400 mm, in a system.
class Executors : public TestDrawing {
protected:
    Executors() : m_system(MakeSystem(L"Town")) {
        acDocManagerPtr()->setStorage(m_pStorage.get());
        RegisterRepositories();
        const Topology::AttributeData high[] = {{"ELEVATION", 12.5}};
        const Topology::AttributeData thin[] = {{"DIAMETER", 100}};
        const Topology::AttributeData thick[] = {{"DIAMETER", 400}};
        const auto a = Storage().AddNode(m_system, {"A", {0, 0}, "Tank", high});
        const auto b = Storage().AddNode(m_system, {"B", {10, 0}});
        const auto c = Storage().AddNode(m_system, {"C", {30, 0}});
        m_thin = Storage().AddSection(m_system, {"S1", {a}, {b}, {}, "Pipe", thin});
        m_thick = Storage().AddSection(m_system, {"S2", {b}, {c}, {}, "Pipe", thick});
        System::CSystemManager::Instance()->SetSystemActive(&m_system);
    }
    ~Executors() override {
        while (acDocManagerPtr()->documentCount() > 0) {
            acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
        }
        acDocManagerPtr()->setStorage(nullptr);
    }

    /// A node of the system tree, or of the disk tree if the system is null.
    static CWsTreeItemData Node(const wchar_t* tag, Workspace::enmWSTreeItemType type,
                                System::CGisSystem* pSystem, const CString& guid = {},
                                enmEntityType entityType = EntityNone) {
        const auto definition = boost::make_shared<Workspace::CWsTreeItemDefinition>();
        definition->SetRepositoryTag(tag);
        definition->SetWsItemType(type);
        definition->SetEntityType(entityType);
        CWsTreeItemData node;
        node.SetPtrItemDefinition(definition);
        node.SetSystem(pSystem);
        node.SetGuid(guid);
        return node;
    }
    CWsTreeItemData SystemItem(const wchar_t* tag, const CString& guid = {},
                               enmEntityType type = EntityNone) {
        return Node(tag, Workspace::WsItemSystemConfiguration, &m_system, guid, type);
    }

    /// Runs a command as the host does, as one undo step.
    template <class Call>
    static boost::shared_ptr<Workspace::CExecutorReturnValue> InOrder(const wchar_t* id,
                                                                      Call call) {
        boost::shared_ptr<Workspace::CExecutorReturnValue> result;
        acedRunner().RunInside({id, OrderOrigin::Console, [&] {
                                    result = call();
                                    return CommandOutcome::Done;
                                }});
        return result;
    }
    /// GUID of the command's item; empty if the command was not carried out.
    CString Base(const wchar_t* id, std::initializer_list<const wchar_t*> answers,
                 CWsTreeItemData* pNode, Query::CQueryDefinition* pQuery = nullptr) {
        Host().Answer(answers);
        const auto result = InOrder(id, [&] { return m_base.Execute(id, pQuery, pNode); });
        EXPECT_TRUE(Host().AllAnswered()) << Host().Output();
        EXPECT_EQ(result->m_nStatus == 0, result->m_strText1.IsEmpty());
        return result->m_strText1;
    }
    /// The number of entities in a run; -1 if the command was not carried out.
    static int Run(const wchar_t* id, CWsTreeItemData* pNode,
                   Query::CQueryDefinition* pQuery = nullptr) {
        const auto result = InOrder(id, [&] { return CBaseExecutor().Execute(id, pQuery, pNode); });
        return result->m_nStatus ? result->m_nNumber : -1;
    }
    int System(const wchar_t* id, std::initializer_list<const wchar_t*> answers,
               CWsTreeItemData* pNode, Query::CQueryDefinition* pQuery = nullptr) {
        Host().Answer(answers);
        const int status =
            InOrder(id, [&] { return m_systemExecutor.Execute(id, pQuery, pNode); })->m_nStatus;
        EXPECT_TRUE(Host().AllAnswered()) << Host().Output();
        return status;
    }
    static CRepositoryFactory& Family(const wchar_t* tag) {
        return *CRepositoryManager::Instance()->GetRepositoryfactory(tag);
    }
    CRepositoryFactory::StorePtr InSystem(const wchar_t* tag) {
        return Family(tag).GetSystemStore(&m_system);
    }
    int Color(AcDbObjectId id) const {
        return static_cast<const AcDbEntity*>(Document()->database()->peek(id))->colorIndex();
    }
    std::string Labels() {
        std::string text;
        for (const auto label : Storage().GetTextVector()) {
            text += std::string(label.GetNameUtf8()) + " ";
        }
        return text;
    }
    AcDbUndo& Undo() { return Document()->database()->undo(); }

    std::unique_ptr<IDbStorage> m_pStorage = Tessaly::MakeGeoPackageStorage();
    System::CGisSystem& m_system;
    AcDbObjectId m_thin;
    AcDbObjectId m_thick;
    CBaseExecutor m_base;
    CSystemExecutor m_systemExecutor;
};
