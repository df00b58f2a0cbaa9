// Icons on a screen with a scale factor of two.
#include "tests/mfc/WindowTest.h"

#include <QImage>

#include "platform/mfc/Button.h"
#include "platform/mfc/ComboBox.h"
#include "platform/mfc/IIconSource.h"
#include "platform/mfc/ListCtrl.h"
#include "platform/mfc/Static.h"
#include "platform/mfc/TreeCtrl.h"
#include "tests/mfc/TestDialog.h"

namespace {

const CString kFile(L"" TESSALY_SOURCE_DIR "/share/icons/IDI_REFRESH.svg");

/// Returns the same icon for every handle.
class OneIcon final : public IIconSource {
public:
    OneIcon() : m_pBefore(SetIconSource(this)) {}
    ~OneIcon() override { SetIconSource(m_pBefore); }
    OneIcon(const OneIcon&) = delete;
    OneIcon& operator=(const OneIcon&) = delete;
    CImage GetImage(HICON, CSize size) override { return CImage::FromFile(kFile, size); }

private:
    IIconSource* m_pBefore;
};

QImage ViewOf(const CImage& image) {
    return QImage(reinterpret_cast<const uchar*>(image.Pixels().data()), image.PixelSize().cx,
                  image.PixelSize().cy, QImage::Format_ARGB32_Premultiplied)
        .copy();
}

/// True if a surface contains the opaque pixels of a picture anywhere.
bool Shows(const QImage& surface, const QImage& picture) {
    for (int y = 0; y + picture.height() <= surface.height(); ++y) {
        for (int x = 0; x + picture.width() <= surface.width(); ++x) {
            bool same = true;
            for (int i = 0; same && i < picture.width() * picture.height(); ++i) {
                const QPoint at(i % picture.width(), i / picture.width());
                const QRgb wanted = picture.pixel(at);
                same = qAlpha(wanted) != 255 || surface.pixel(at + QPoint(x, y)) == wanted;
            }
            if (same) {
                return true;
            }
        }
    }
    return false;
}

class SharpIconsTest : public WindowTest {
protected:
    void SetUp() override {
        if (qApp) {
            GTEST_SKIP() << "the toolkit is already running";
        }
        qputenv("QT_SCALE_FACTOR", "2");
        WindowTest::SetUp();
        m_pDialog = std::make_unique<TestDialog>();
        ASSERT_TRUE(m_pDialog->Create(900));
        m_pDialog->ShowWindow(SW_SHOW);
    }
    void TearDown() override {
        if (m_pDialog) {
            m_pDialog->DestroyWindow();
            m_pDialog.reset();
            WindowTest::TearDown();
        }
        qunsetenv("QT_SCALE_FACTOR");
    }

    OneIcon m_source;
    std::unique_ptr<TestDialog> m_pDialog;
    int m_handle = 0;
};

TEST_F(SharpIconsTest, EveryControlUsesTheFullResolutionOfTheScreen) {
    CImageList images;
    images.Add(&m_handle);
    auto& button = m_pDialog->Item<CButton>(kPush);
    button.SetWindowText(L"");
    button.SetIcon(&m_handle, {16, 16});
    auto& text = m_pDialog->Item<CStatic>(kText);
    text.MoveWindow({10, 150, 50, 190});
    text.SetIcon(&m_handle, {16, 16});
    auto& list = m_pDialog->Item<CListCtrl>(kList);
    list.SetImageList(images);
    list.InsertColumn(0, L"a", LVCFMT_LEFT, 60);
    list.InsertItem(0, L"x", 0);
    auto& tree = m_pDialog->Item<CTreeCtrl>(kTree);
    tree.SetImageList(images);
    tree.InsertItem(L"x", 0);
    CWzComboBox combo;
    ASSERT_TRUE(combo.SubclassDlgItem(kCombo, m_pDialog.get()));
    combo.GetImageList().Add(&m_handle);
    combo.AddString(L"x", 0);
    combo.SetCurSel(0);
    AfxPumpMessages();

    const QImage wanted = ViewOf(CImage::FromFile(kFile, {32, 32}, 1));
    const std::pair<const char*, CWnd*> shown[] = {{"button", &button},
                                                   {"static", &text},
                                                   {"list", &list},
                                                   {"tree", &tree},
                                                   {"combo box", &combo}};
    for (const auto& [name, pControl] : shown) {
        const QImage surface = FrameOf(*pControl)->grab().toImage();
        EXPECT_EQ(surface.devicePixelRatio(), 2);
        EXPECT_TRUE(Shows(surface, wanted)) << name;
    }
}

} // namespace
