// The link between a window object and the widgets that show it. For sources only.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <QObject>
#include <QPointer>
#include <QSize>
#include <QWidget>

#include "platform/mfc/Wnd.h"

class QEvent;

/// What a control can do beyond being a widget.
class WidgetRole {
public:
    virtual ~WidgetRole() = default;
    virtual QString Caption() const { return {}; }
    virtual void SetCaption(const QString&) {}
    /// Texts and rows that somebody should read who does not see the window.
    virtual void AppendLines(std::vector<std::wstring>&) const {}
    /// Enter is for this control, not for the default button.
    virtual bool WantsReturn() const { return false; }
    /// Pressed by Enter while it has the focus, and by the default button.
    virtual bool Press() { return false; }
    /// The release of a mouse button that was pressed on the control is part of its click.
    virtual bool OwnsRelease() const { return false; }
};

/// A part of a window, as events come to it.
enum class enmWidgetPart { Whole, Frame, Client };

/// Calls what the toolkit does with an event by itself.
class ToolkitDefault {
public:
    virtual bool Run() = 0;

protected:
    ~ToolkitDefault() = default;
};

/// Registered from creation to destruction of its window and shared with the calls that are
/// in its handlers.
class WindowCore final : public QObject, public std::enable_shared_from_this<WindowCore> {
public:
    /// Links an object to its widgets; outer and client are the same where there is no frame.
    static std::shared_ptr<WindowCore> Bind(CWnd& wnd, QWidget* pOuter, QWidget* pClient,
                                            CWnd* pParent, UINT id, UINT style);
    static WindowCore* Find(HWND hWnd);
    /// The window that a widget is part of, its own or the nearest around it; null for none.
    static WindowCore* Around(const QWidget* pWidget);
    static WindowCore* OfWidget(const QWidget* pWidget);
    static std::vector<WindowCore*> All();
    ~WindowCore() override;

    HWND Handle() const { return m_handle; }
    CWnd* Object() const { return m_pWnd; }
    QWidget* Outer() const { return m_outer; }
    QWidget* Client() const { return m_client; }
    WidgetRole* Role() const { return m_pRole; }
    CWnd* Parent() const { return CWnd::FromHandle(m_parent); }
    UINT Id() const { return m_id; }
    UINT Style() const { return m_style; }
    const std::vector<HWND>& Children() const { return m_children; }

    /// Has another object stand for the window; the one before is left without.
    void HandOver(CWnd& wnd);
    /// Has the window go with another parent; null: with none.
    void MoveTo(WindowCore* pParent);
    /// An object that goes with the window: a control that nobody took over.
    void Own(std::unique_ptr<CWnd> pWnd) { m_pOwned = std::move(pWnd); }
    void Destroy();
    /// The toolkit destroyed a widget by itself.
    void WidgetGone();

    /// Sends a message, with what the toolkit does by itself at hand for DefWindowProc.
    LRESULT Deliver(const MSG& msg, ToolkitDefault* pDefault);
    /// Turns an event into a message and delivers it; the toolkit does the others by itself.
    bool DeliverEvent(enmWidgetPart part, QEvent* pEvent, ToolkitDefault& toolkit);
    /// True if there was something of the toolkit's own to do for the message in hand.
    static bool RunToolkitDefault(const WindowCore* pCore);
    static const MSG* MessageInHand();

    void Command(UINT code);
    LRESULT Notify(NMHDR& header, UINT code);
    bool PreTranslate(MSG& msg);

    void Post(UINT message, WPARAM wParam, LPARAM lParam);
    void StartTimerOf(DWORD_PTR id, UINT milliseconds);
    bool StopTimerOf(DWORD_PTR id);

    /// Of a child in its parent, of others on the screen as modules count.
    QRect GeometryNow() const;
    void TakeGeometry(const QRect& rect);
    /// Asks the handlers about a place, then takes it.
    void Place(WINDOWPOS place, const WindowCore* pInsertAfter);

protected:
    void timerEvent(QTimerEvent* pEvent) override;
    void customEvent(QEvent* pEvent) override;
    bool eventFilter(QObject* pObject, QEvent* pEvent) override;

private:
    LRESULT CallWindow(const MSG& msg);
    class Frame;
    WindowCore() = default;
    bool Translate(enmWidgetPart part, QEvent* pEvent, MSG& msg) const;
    void Register(QWidget* pWidget);
    void TellDestroyed();
    void Detach();

    HWND m_handle = nullptr;
    HWND m_parent = nullptr;
    CWnd* m_pWnd = nullptr;
    WidgetRole* m_pRole = nullptr;
    QPointer<QWidget> m_outer;
    QPointer<QWidget> m_client;
    UINT m_id = 0;
    UINT m_style = 0;
    bool m_destroying = false;
    bool m_inForeignDefault = false;
    std::vector<HWND> m_children;
    std::vector<const QWidget*> m_registered;
    std::unordered_map<int, DWORD_PTR> m_timers; ///< by the toolkit's numbers
    std::unique_ptr<CWnd> m_pOwned;
};

/// Moves and sizes a widget; a hidden one learns of its size at once, too.
void ApplyGeometry(QWidget* pWidget, const QRect& rect);

/// A widget whose events come as messages first.
template <class Base>
class Hooked : public Base, public WidgetRole {
public:
    explicit Hooked(QWidget* pParent, enmWidgetPart part = enmWidgetPart::Whole)
        : Base(pParent), m_part(part) {}
    // NOLINTNEXTLINE(bugprone-exception-escape): what handlers throw ends the program here
    ~Hooked() override {
        if (WindowCore* pCore = WindowCore::OfWidget(this)) {
            pCore->WidgetGone();
        }
    }
    WindowCore* Core() const { return WindowCore::OfWidget(this); }

protected:
    bool event(QEvent* pEvent) override {
        return Route(pEvent, [this](QEvent* p) { return this->Base::event(p); });
    }
    template <class Call>
    bool Route(QEvent* pEvent, Call call) {
        struct Toolkit final : ToolkitDefault {
            Toolkit(Call& toCall, QEvent* p) : m_call(toCall), m_pEvent(p) {}
            bool Run() override { return m_call(m_pEvent); }
            Call& m_call;
            QEvent* m_pEvent;
        } toolkit{call, pEvent};
        WindowCore* const pCore = Core();
        return pCore ? pCore->DeliverEvent(m_part, pEvent, toolkit) : toolkit.Run();
    }

private:
    enmWidgetPart m_part;
};

/// The same for widgets that scroll: painting and the mouse come to their viewport.
template <class Base>
class HookedArea : public Hooked<Base> {
public:
    using Hooked<Base>::Hooked;

protected:
    bool viewportEvent(QEvent* pEvent) override {
        return this->Route(pEvent, [this](QEvent* p) { return this->Base::viewportEvent(p); });
    }
};

/// The widget of a control, if it is of the kind asked for.
template <class Widget>
Widget* WidgetOf(const CWnd& wnd) {
    return wnd.Core() ? dynamic_cast<Widget*>(wnd.Core()->Outer()) : nullptr;
}
