// The desktop as reported by the toolkit and X11.
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <span>
#include <string_view>
#include <unordered_map>
#include <utility>

#include <QCursor>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QScreen>
#include <QWindow>
#include <xcb/xcb.h>

#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/ScreenPlace.h"
#include "platform/mfc/toolkit/Stacking.h"
#include "platform/mfc/toolkit/WindowCore.h"
#include "platform/win/Screens.h"

namespace {

template <class Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

/// Null without an X server.
xcb_connection_t* Connection() {
    // The interface exists without a server, too, but has no connection then.
    const auto* const pX11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return pX11 ? pX11->connection() : nullptr;
}

/// The ancestor of a window that is a child of the root: a window manager may have added a frame.
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

/// Stacking positions of the root's children, 0 at the back.
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

/// Sorts windows, recorded front to back, in the server's stacking order.
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

using Property = Owned<xcb_get_property_reply_t>;

Property TakeProperty(xcb_connection_t* pConnection, xcb_get_property_cookie_t cookie) {
    return {xcb_get_property_reply(pConnection, cookie, nullptr), &std::free};
}

std::span<const std::uint32_t> Numbers(const Property& property) {
    if (!property || property->format != 32) {
        return {};
    }
    return {static_cast<const std::uint32_t*>(xcb_get_property_value(property.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(property.get())) / 4};
}

/// Parses a panel's struts: the four thicknesses, followed by the range of each.
void AppendStruts(std::span<const std::uint32_t> numbers, std::vector<EdgeStrut>& struts) {
    constexpr std::size_t kEdges = 4;
    if (numbers.size() < 3 * kEdges) {
        return;
    }
    for (std::size_t edge = 0; edge < kEdges; ++edge) {
        struts.push_back({static_cast<enmEdge>(edge), static_cast<int>(numbers[edge]),
                          static_cast<int>(numbers[kEdges + 2 * edge]),
                          static_cast<int>(numbers[kEdges + 2 * edge + 1])});
    }
}

/// The struts of all panels known to the window manager; empty without one.
std::vector<EdgeStrut> StrutsOnServer(xcb_connection_t* pConnection) {
    constexpr std::uint32_t kMost = 4096;
    const auto atom = [pConnection](std::string_view name) {
        const Owned<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(pConnection,
                                  xcb_intern_atom(pConnection, 1,
                                                  static_cast<std::uint16_t>(name.size()),
                                                  name.data()),
                                  nullptr),
            &std::free);
        return reply ? reply->atom : xcb_atom_t{XCB_NONE};
    };
    const auto ask = [&](xcb_window_t window, xcb_atom_t property) {
        return xcb_get_property(pConnection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                                kMost);
    };
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(pConnection)).data->root;
    const Property list = TakeProperty(pConnection, ask(root, atom("_NET_CLIENT_LIST")));
    const xcb_atom_t partial = atom("_NET_WM_STRUT_PARTIAL");
    // Send all requests before waiting for the first reply.
    std::vector<xcb_get_property_cookie_t> cookies;
    for (const xcb_window_t window : Numbers(list)) {
        cookies.push_back(ask(window, partial));
    }
    std::vector<EdgeStrut> struts;
    for (const xcb_get_property_cookie_t cookie : cookies) {
        AppendStruts(Numbers(TakeProperty(pConnection, cookie)), struts);
    }
    return struts;
}

/// In pixels of the server: the toolkit scales sizes but not positions.
CRect NativeRect(const QScreen& screen) {
    return ToCRect({screen.geometry().topLeft(), screen.size() * screen.devicePixelRatio()});
}

/// The toolkit knows only one work area for all monitors, so a panel on one would reduce the
/// others, too.
QRect WorkAreaOfScreen(const QScreen& screen) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    xcb_connection_t* const pConnection = Connection();
    if (!pConnection || screens.size() < 2) {
        return screen.availableGeometry();
    }
    CRect all;
    for (const QScreen* const pScreen : screens) {
        const CRect rect = NativeRect(*pScreen);
        all = {0, 0, std::max(all.right, rect.right), std::max(all.bottom, rect.bottom)};
    }
    const CRect full = NativeRect(screen);
    const CRect work = WorkAreaOf(full, all, StrutsOnServer(pConnection));
    const double ratio = screen.devicePixelRatio();
    const auto scaled = [ratio](int length) { return static_cast<int>(length / ratio); };
    return {screen.geometry().left() + scaled(work.left - full.left),
            screen.geometry().top() + scaled(work.top - full.top), scaled(work.Width()),
            scaled(work.Height())};
}

Monitor MonitorOf(const QScreen& screen) {
    return {ToScreenRect(screen.geometry()), ToScreenRect(WorkAreaOfScreen(screen))};
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
            // Even with all screens unplugged, callers need a size to work with.
            monitors.push_back({{0, 0, 1024, 768}, {0, 0, 1024, 768}});
        }
        return monitors;
    }

    Monitor Primary() const override {
        AfxStartToolkit();
        const QScreen* const pPrimary = QGuiApplication::primaryScreen();
        if (!pPrimary) {
            return IScreens::Primary();
        }
        // With several monitors, all panels must be queried from the server: too slow for each
        // mouse move.
        const QRect geometry = pPrimary->geometry();
        if (!m_primaryAge.isValid() || m_primaryAge.hasExpired(kPrimaryMilliseconds) ||
            m_primaryGeometry != geometry || QGuiApplication::screens().size() < 2) {
            m_primary = MonitorOf(*pPrimary);
            m_primaryGeometry = geometry;
            m_primaryAge.start();
        }
        return m_primary;
    }

    CPoint Cursor() const override {
        AfxStartToolkit();
        return ToScreenPoint(QCursor::pos());
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

private:
    static constexpr qint64 kPrimaryMilliseconds = 250;

    mutable Monitor m_primary;
    mutable QRect m_primaryGeometry;
    mutable QElapsedTimer m_primaryAge;
};

IScreens* g_pScreens = nullptr;

} // namespace

QPoint PrimaryCorner() {
    const QScreen* const pPrimary = QGuiApplication::primaryScreen();
    return pPrimary ? pPrimary->geometry().topLeft() : QPoint();
}

IScreens& Screens() {
    static ToolkitScreens screens;
    return g_pScreens ? *g_pScreens : screens;
}

IScreens* SetScreens(IScreens* pScreens) {
    return std::exchange(g_pScreens, pScreens);
}
