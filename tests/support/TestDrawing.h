// A test fixture with an open drawing.
#pragma once

#include <gtest/gtest.h>

#include "platform/arx/ApDocManager.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/TopologyMultiStorage.h"
#include "siblings/networkcore/TopologyStorage.h"
#include "tests/support/TestHost.h"

class TestDrawing : public testing::Test {
protected:
    TestDrawing() : m_pDoc(acDocManagerPtr()->newDocument(L"a.dwg")) {}
    ~TestDrawing() override {
        while (acDocManagerPtr()->documentCount() > 0) {
            acDocManagerPtr()->closeDocument(acDocManagerPtr()->curDocument());
        }
    }
    TestDrawing(const TestDrawing&) = delete;
    TestDrawing& operator=(const TestDrawing&) = delete;

    const TestHost& Host() const { return m_host; }
    TestHost& Host() { return m_host; }
    AcApDocument* Document() const { return m_pDoc; }
    /// The topology of the current drawing.
    static Orvane::Topology::CTopologyStorage& Storage() {
        return *Orvane::Topology::CTopologyMultiStorage::Instance()->GetTopology();
    }
    static Orvane::System::CGisSystem&
    MakeSystem(const wchar_t* name, Orvane::enmTopologyType type = Orvane::TopologyLine,
               int function = 1) {
        CString reason;
        Orvane::System::CGisSystem* const pSystem =
            Orvane::System::CSystemManager::Instance()->CreateSystem(name, type, function, &reason);
        if (!pSystem) {
            throw std::runtime_error(WideToUtf8(reason.View()));
        }
        return *pSystem;
    }

private:
    TestHost m_host;
    AcApDocument* m_pDoc;
};
