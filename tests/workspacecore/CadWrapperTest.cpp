// Access to the objects of the current drawing for modules.
#include <gtest/gtest.h>

#include "platform/arx/ApDocManager.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/cadwrapper/DocLock.h"
#include "siblings/cadwrapper/EntityPtr.h"

using namespace Orvane;

namespace {

class CadWrapperTest : public testing::Test {
protected:
    CadWrapperTest() : m_pDoc(acDocManagerPtr()->newDocument(L"a.dwg")) {}
    AcApDocument* m_pDoc;
};

} // namespace

TEST_F(CadWrapperTest, AnEntityIsOpenAsLongAsItIsLookedAt) {
    AcDbDatabase& database = *m_pDoc->database();
    const AcDbObjectId id = database.appendEntity(std::make_unique<AcDbPoint>());
    {
        CORVCEntityPtr entity(id, AcDb::kForRead);
        ASSERT_TRUE(entity);
        EXPECT_EQ(CORVCEntityPtr(id, AcDb::kForWrite).openStatus(), Acad::eWasOpenForRead);
        EXPECT_EQ(entity.upgradeOpen(), Acad::eOk);
        entity->setColorIndex(3);
        EXPECT_FALSE(CORVCEntityPtr(id, AcDb::kForRead));
        EXPECT_EQ(entity.close(), Acad::eOk);
        EXPECT_FALSE(entity);
        EXPECT_EQ(entity.close(), Acad::eOk);
        EXPECT_EQ(entity.upgradeOpen(), Acad::eNullObjectId);
    }
    EXPECT_EQ(CORVCEntityPtr(id, AcDb::kForWrite)->colorIndex(), 3);
    EXPECT_EQ(CORVCEntityPtr({}, AcDb::kForRead).openStatus(), Acad::eNullObjectId);
    EXPECT_EQ(CORVCEntityPtr(database.modelSpace(), AcDb::kForRead).openStatus(),
              Acad::eInvalidInput);
    CORVCEntityPtr erased(id, AcDb::kForWrite);
    erased->erase();
    erased.close();
    EXPECT_EQ(CORVCEntityPtr(id, AcDb::kForRead).openStatus(), Acad::eWasErased);
}

TEST_F(CadWrapperTest, WithoutADrawingThereIsNothingToOpen) {
    acDocManagerPtr()->closeDocument(m_pDoc);
    const CORVCDocLock lock;
    EXPECT_EQ(CORVCDictionaryPtr(AcDb::kForRead).openStatus(), Acad::eNoDatabase);
    EXPECT_EQ(CORVCEntityPtr(AcDbObjectId(1), AcDb::kForRead).openStatus(), Acad::eNoDatabase);
}
