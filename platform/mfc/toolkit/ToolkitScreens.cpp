// The desktop as the toolkit and X11 tell of it.
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <unordered_map>
#include <utility>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <xcb/xcb.h>

#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"
#include "platform/mfc/toolkit/Stacking.h"
#include "platform/mfc/toolkit/WindowCore.h"
#include "platform/win/Screens.h"

namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// Null without an X server.
xcb_connection_t* Connection() {
    // The interface is there without a server, too, but then has no connection.
    const auto* const pX11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return pX11 ? pX11->connection() : nullptr;
}

/// The window of a tree whose parent is the root: a window manager may have put a frame
/// around ours.
xcb_window_t TopOf(xcb_connection_t* pConnection, xcb_window_t window) {
    for (;;) {
        const Owned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(pConnection, xcb_query_tree(pConnection, window), nullptr),
            &std::free);
        if (!tree || tree->parent == tree->root || tree->parent == XCB_NONE) {
            return window;
        }
        window = tree->parent;
    }
}

/// Places of the root's children, 0 at the back.
std::unordered_map<xcb_window_t, int> PlacesOnServer(xcb_connection_t* pConnection) {
    std::unordered_map<xcb_window_t, int> places;
    xcb_flush(pConnection);
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(pConnection)).data->root;
    const Owned<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(pConnection, xcb_query_tree(pConnection, root), nullptr), &std::free);
    if (tree) {
        const xcb_window_t* const pChildren = xcb_query_tree_children(tree.get());
        for (int place = 0; place < xcb_query_tree_children_length(tree.get()); ++place) {
            places.emplace(pChildren[place], place);
        }
    }
    return places;
}

/// Puts windows, noted from the front to the back, in the order of the server.
void RefineByServer(std::vector<const QWidget*>& windows) {
    xcb_connection_t* const pConnection = Connection();
    if (!pConnection) {
        return;
    }
    const auto places = PlacesOnServer(pConnection);
    std::unordered_map<const QWidget*, int> placeOf;
    for (const QWidget* const pWindow : windows) {
        const auto top = TopOf(pConnection, static_cast<xcb_window_t>(pWindow->winId()));
        const auto found = places.find(top);
        placeOf[pWindow] = found == places.end() ? -1 : found->second;
    }
    std::stable_sort(
        windows.begin(), windows.end(),
        [&placeOf](const QWidget* pA, const QWidget* pB) { return placeOf[pA] > placeOf[pB]; });
}

Monitor MonitorOf(const QScreen& screen) {
    return {ToCRect(screen.geometry()), ToCRect(screen.availableGeometry())};
}

class ToolkitScreens final : public IScreens {
public:
    std::vector<Monitor> Monitors() const override {
        AfxStartToolkit();
        std::vector<Monitor> monitors;
        const QScreen* const pPrimary = QGuiApplication::primaryScreen();
        if (pPrimary) {
            monitors.push_back(MonitorOf(*pPrimary));
        }
        for (const QScreen* const pScreen : QGuiApplication::screens()) {
            if (pScreen != pPrimary) {
                monitors.push_back(MonitorOf(*pScreen));
            }
        }
        if (monitors.empty()) {
            // All screens can be unplugged; there is still something to measure against.
            monitors.push_back({{0, 0, 1024, 768}, {0, 0, 1024, 768}});
        }
        return monitors;
    }

    CPoint Cursor() const override {
        AfxStartToolkit();
        return ToCPoint(QCursor::pos());
    }

    std::vector<HWND> Stacking() const override {
        AfxStartToolkit();
        std::vector<const QWidget*> windows;
        for (const QWidget* const pWindow : WindowsByUse()) {
            if (pWindow->isVisible() && WindowCore::OfWidget(pWindow)) {
                windows.push_back(pWindow);
            }
        }
        RefineByServer(windows);
        std::vector<HWND> handles;
        handles.reserve(windows.size());
        for (const QWidget* const pWindow : windows) {
            handles.push_back(WindowCore::OfWidget(pWindow)->Handle());
        }
        return handles;
    }
};

IScreens* g_pScreens = nullptr;

} // namespace

IScreens& Screens() {
    static ToolkitScreens screens;
    return g_pScreens ? *g_pScreens : screens;
}

IScreens* SetScreens(IScreens* pScreens) {
    return std::exchange(g_pScreens, pScreens);
}
