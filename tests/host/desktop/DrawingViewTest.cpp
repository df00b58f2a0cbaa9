#include "host/desktop/view/DrawingView.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QWheelEvent>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <optional>

#include "tests/host/desktop/ViewDrawing.h"
#include "tests/host/desktop/WindowTest.h"

using namespace Tessaly;

namespace {

struct Answer {
    PickOutcome how;
    AcDbObjectId id;
    double x;
    double y;
};

class DrawingViewTest : public WindowTest {
protected:
    DrawingViewTest() {
        view.resize(400, 300);
        QPalette palette;
        palette.setColor(QPalette::Base, Qt::black);
        view.setPalette(palette);
        QObject::connect(&view, &DrawingView::PickEnded,
                         [this](PickOutcome how, AcDbObjectId id, double x, double y) {
                             answer = {how, id, x, y};
                         });
        QObject::connect(&view, &DrawingView::SelectionChanged, [this] { ++selectionChanges; });
        QObject::connect(&view, &DrawingView::PositionMoved, [this](double x, double y) {
            position = {x, y};
        });
        view.show();
        QApplication::processEvents(); // not painted before it is exposed
    }

    /// One unit per pixel, with (0, 0) in the lower left corner.
    void ShowFromOrigin() {
        AddSpot(database, 0, 0);
        AddSpot(database, 400, 300);
        view.SetDatabase(&database);
        view.UpdateDisplay();
        view.ZoomBy(1.05);
    }
    static QPointF Place(double x, double y) { return {x, 300 - y}; }

    void Mouse(QEvent::Type type, Qt::MouseButton button, const QPointF& at,
               Qt::KeyboardModifiers modifiers = {}) {
        const bool isUp = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, view.mapToGlobal(at), button,
                          isUp ? Qt::MouseButtons() : Qt::MouseButtons(button), modifiers);
        QApplication::sendEvent(&view, &event);
    }
    void Drag(Qt::MouseButton button, const QPointF& from, const QPointF& to,
              Qt::KeyboardModifiers modifiers = {}) {
        Mouse(QEvent::MouseButtonPress, button, from, modifiers);
        Mouse(QEvent::MouseMove, button, (from + to) / 2, modifiers);
        Mouse(QEvent::MouseMove, button, to, modifiers);
        Mouse(QEvent::MouseButtonRelease, button, to, modifiers);
    }
    void Click(const QPointF& at, Qt::KeyboardModifiers modifiers = {}) {
        Drag(Qt::LeftButton, at, at, modifiers);
    }
    bool Key(int key, QEvent::Type type = QEvent::KeyPress) {
        QKeyEvent event(type, key, Qt::NoModifier);
        event.setAccepted(true);
        QApplication::sendEvent(&view, &event);
        return event.isAccepted();
    }
    void Wheel(const QPointF& at, int steps) {
        QWheelEvent event(at, view.mapToGlobal(at), {}, {0, steps * 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
    }
    Rgb PixelAt(double x, double y) {
        const QPointF at = Place(x, y);
        view.CompletePicture();
        return view.grab().toImage().pixel(static_cast<int>(at.x()), static_cast<int>(at.y()));
    }

    AcDbDatabase database;
    DrawingView view;
    std::optional<Answer> answer;
    int selectionChanges = 0;
    PlanePoint position;
};

} // namespace

TEST_F(DrawingViewTest, ShowsNothingWithoutComplaint) {
    view.UpdateDisplay();
    view.SetDatabase(&database);
    view.UpdateDisplay();
    EXPECT_TRUE(view.IsPictureWhole());
    for (const int key : {Qt::Key_Home, Qt::Key_Plus, Qt::Key_Left, Qt::Key_Escape}) {
        EXPECT_TRUE(Key(key));
    }
    EXPECT_FALSE(Key(Qt::Key_F2)) << "left to the window";
    Click({10, 10});
    EXPECT_FALSE(view.ZoomTo({}, 2));
    view.UpdateDisplay();
    view.SetDatabase(nullptr);
    view.UpdateDisplay();
}

TEST_F(DrawingViewTest, ZoomsAndPansWithTheMouse) {
    ShowFromOrigin();
    Mouse(QEvent::MouseMove, Qt::NoButton, Place(300, 200));
    EXPECT_NEAR(position.x, 300, 1e-3);
    EXPECT_NEAR(position.y, 200, 1e-3);
    Wheel(Place(300, 200), 4);
    EXPECT_NEAR(view.Transform().UnitsPerPixel(), 1 / std::pow(1.25, 4), 1e-6);
    Mouse(QEvent::MouseMove, Qt::NoButton, Place(300, 200));
    EXPECT_NEAR(position.x, 300, 1e-3) << "stays under the cursor";
    Drag(Qt::MiddleButton, Place(300, 200), Place(260, 210));
    Mouse(QEvent::MouseMove, Qt::NoButton, Place(260, 210));
    EXPECT_NEAR(position.x, 300, 1e-3) << "moved along";
    EXPECT_NEAR(position.y, 200, 1e-3);
    Key(Qt::Key_Space);
    Drag(Qt::LeftButton, Place(260, 210), Place(300, 200));
    Key(Qt::Key_Space, QEvent::KeyRelease);
    Mouse(QEvent::MouseMove, Qt::NoButton, Place(300, 200));
    EXPECT_NEAR(position.x, 300, 1e-3);
    EXPECT_TRUE(view.Selection().empty());
    Mouse(QEvent::MouseButtonDblClick, Qt::MiddleButton, Place(1, 1));
    view.UpdateDisplay();
    EXPECT_NEAR(view.Transform().UnitsPerPixel(), 1.05, 1e-6);
}

TEST_F(DrawingViewTest, ObeysKeys) {
    ShowFromOrigin();
    struct Case {
        int key;
        double x;
        double y;
        double scale;
    };
    for (const Case& test : {Case{Qt::Key_Left, -50, 0, 1}, Case{Qt::Key_Right, 50, 0, 1},
                             Case{Qt::Key_Up, 0, 38, 1}, Case{Qt::Key_Down, 0, -38, 1},
                             Case{Qt::Key_Plus, 0, 0, 1.25}, Case{Qt::Key_Minus, 0, 0, 0.8}}) {
        const PlanePoint before = view.Transform().Center();
        const double scale = view.Transform().UnitsPerPixel();
        Key(test.key);
        EXPECT_NEAR(view.Transform().Center().x - before.x, test.x * scale, 1e-6) << test.key;
        EXPECT_NEAR(view.Transform().Center().y - before.y, test.y * scale, 1e-6) << test.key;
        EXPECT_NEAR(scale / view.Transform().UnitsPerPixel(), test.scale, 1e-9) << test.key;
    }
}

TEST_F(DrawingViewTest, SelectsByClickAndBox) {
    const AcDbObjectId low = AddLine(database, {{50, 50}, {150, 50}});
    const AcDbObjectId high = AddLine(database, {{50, 200}, {350, 200}});
    ShowFromOrigin();
    using Ids = std::vector<AcDbObjectId>;
    Click(Place(100, 53));
    EXPECT_EQ(view.Selection(), Ids{low});
    Click(Place(100, 198), Qt::ShiftModifier);
    EXPECT_EQ(view.Selection(), (Ids{low, high}));
    Click(Place(100, 120), Qt::ShiftModifier);
    EXPECT_EQ(view.Selection(), (Ids{low, high})) << "nothing is added";
    Click(Place(100, 120));
    EXPECT_EQ(view.Selection(), Ids{});
    Drag(Qt::LeftButton, Place(30, 30), Place(200, 220));
    EXPECT_EQ(view.Selection(), Ids{low}) << "to the right: only entities inside";
    Drag(Qt::LeftButton, Place(200, 220), Place(30, 30));
    EXPECT_EQ(view.Selection(), (Ids{low, high})) << "to the left: all entities it touches";
    EXPECT_EQ(selectionChanges, 5);

    EraseEntity(database, low);
    view.UpdateDisplay();
    EXPECT_EQ(view.Selection(), Ids{high}) << "erased entities are deselected";
    Key(Qt::Key_Escape);
    EXPECT_EQ(view.Selection(), Ids{});
}

TEST_F(DrawingViewTest, AsksForOneEntity) {
    const AcDbObjectId line = AddLine(database, {{50, 50}, {150, 50}});
    ShowFromOrigin();
    view.StartPick();
    Click(Place(100, 52));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->how, PickOutcome::Picked);
    EXPECT_EQ(answer->id, line);
    EXPECT_NEAR(answer->x, 100, 1e-3);
    EXPECT_TRUE(view.Selection().empty()) << "picking does not select";

    view.StartPick();
    Drag(Qt::MiddleButton, Place(10, 10), Place(12, 10));
    EXPECT_TRUE(view.IsPicking()) << "panning does not end the pick";
    Click(Place(200, 150));
    EXPECT_EQ(answer->how, PickOutcome::Missed);
    view.StartPick();
    Key(Qt::Key_Escape);
    EXPECT_EQ(answer->how, PickOutcome::Cancelled);
    answer.reset();
    Key(Qt::Key_Escape);
    Click(Place(100, 52));
    EXPECT_FALSE(answer) << "no pick is in progress";
}

TEST_F(DrawingViewTest, StopsAskingWhenTheDrawingGoes) {
    {
        AcDbDatabase other;
        view.SetDatabase(&other);
        AddSpot(other, 1, 2); // so that the view has a pending change
        view.StartPick();
    }
    EXPECT_FALSE(answer) << "not from within the call";
    QApplication::processEvents();
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->how, PickOutcome::Cancelled);
}

TEST_F(DrawingViewTest, PicksByTheNameBesideAnEntity) {
    const AcDbObjectId spot = AddSpot(database, 200, 150);
    AcDbEntity* pEntity = nullptr;
    acdbOpenObject(pEntity, spot, AcDb::kForWrite, false, &database);
    pEntity->setAttribute(AcDbIntern("NAME"), "Manhole 12");
    pEntity->close();
    ShowFromOrigin();
    view.UpdateDisplay();
    EXPECT_EQ(view.EntityAt(Place(235, 160)), spot);
    EXPECT_TRUE(view.EntityAt(Place(235, 190)).isNull());
}

TEST_F(DrawingViewTest, ZoomsToEntities) {
    const AcDbObjectId line = AddLine(database, {{100, 100}, {140, 100}});
    const AcDbObjectId spot = AddSpot(database, 300, 200);
    ShowFromOrigin();
    const AcDbObjectId ids[] = {line, AcDbObjectId(), AcDbObjectId(12345)};
    EXPECT_TRUE(view.ZoomTo(ids, 2));
    EXPECT_NEAR(view.Transform().UnitsPerPixel() * 400, 80, 1e-9);
    EXPECT_NEAR(view.Transform().Center().x, 120, 1e-9);
    EXPECT_TRUE(view.ZoomTo(std::span(&spot, 1), 3));
    EXPECT_NEAR(view.Transform().Center().x, 300, 1e-9);
    EXPECT_LT(view.Transform().UnitsPerPixel(), 0.1) << "zoomed in on the point";
    EraseEntity(database, line);
    EXPECT_FALSE(view.ZoomTo(ids, 2));
}

TEST_F(DrawingViewTest, MarksUntilItIsRedrawn) {
    const AcDbObjectId line = AddLine(database, {{50, 50.5}, {150, 50.5}});
    const AcDbObjectId other = AddLine(database, {{50, 80.5}, {150, 80.5}});
    ShowFromOrigin();
    const Rgb plain = PixelAt(100, 50.5);
    view.Mark(std::span(&line, 1), 1);
    view.Highlight(std::span(&other, 1), 3);
    EXPECT_EQ(PixelAt(100, 50.5), 0xffff0000);
    EXPECT_EQ(PixelAt(100, 80.5), 0xff00ff00);
    EXPECT_EQ(PixelAt(100, 82), 0xff00ff00) << "thick";
    view.UpdateDisplay();
    EXPECT_EQ(PixelAt(100, 50.5), 0xffff0000) << "until the next Redraw";
    view.Redraw();
    EXPECT_EQ(PixelAt(100, 50.5), plain);
    EXPECT_EQ(PixelAt(100, 80.5), plain);
}

TEST_F(DrawingViewTest, DrawsWithTheColoursOfThePalette) {
    AddLine(database, {{50, 50.5}, {150, 50.5}});
    AddText(database, 50, 100, "TEXT", 40);
    ShowFromOrigin();
    EXPECT_EQ(PixelAt(100, 20), 0xff000000);
    EXPECT_GT(PixelAt(100, 50.5), 0xffd00000);
    QPalette light;
    light.setColor(QPalette::Base, Qt::white);
    view.setPalette(light);
    EXPECT_EQ(PixelAt(100, 20), 0xffffffff);
    EXPECT_LT(PixelAt(100, 50.5) & 0xffU, 0x30U);
    int dark = 0;
    for (int x = 50; x < 150; ++x) {
        dark += (PixelAt(x, 120) & 0xffU) < 128;
    }
    EXPECT_GT(dark, 5) << "letters";
}
