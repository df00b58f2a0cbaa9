// Links a window object to the widgets that show it. For sources only.
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

/// Control-specific behaviour of a widget.
class WidgetRole {
public:
    virtual ~WidgetRole() = default;
    virtual QString Caption() const { return {}; }
    virtual void SetCaption(const QString&) {}
    /// Appends the texts and rows to print for a user who cannot see the window.
    virtual void AppendLines(std::vector<std::wstring>&) const {}
    /// True if Enter is handled by this control instead of the default button.
    virtual bool WantsReturn() const { return false; }
    /// Called when Enter presses the focused control or the default button.
    virtual bool Press() { return false; }
    /// True if a mouse release after a press on the control is part of its click.
    virtual bool OwnsRelease() const { return false; }
};

/// The part of a window that receives an event.
enum class enmWidgetPart { Whole, Frame, Client };

/// Runs the toolkit's default handling of an event.
class ToolkitDefault {
public:
    virtual bool Run() = 0;

protected:
    ~ToolkitDefault() = default;
};

/// Registered from creation to destruction of its window; shared with the calls currently in its
/// handlers.
class WindowCore final : public QObject, public std::enable_shared_from_this<WindowCore> {
public:
    /// Links an object to its widgets; outer and client are the same for windows without a frame.
    static std::shared_ptr<WindowCore> Bind(CWnd& wnd, QWidget* pOuter, QWidget* pClient,
                                            CWnd* pParent, UINT id, UINT style);
    static WindowCore* Find(HWND hWnd);
    /// The window that a widget is part of, or the nearest around it; null if there is none.
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

    /// Attaches another object to the window and detaches the current one.
    void HandOver(CWnd& wnd);
    /// Changes the parent; null removes it.
    void MoveTo(WindowCore* pParent);
    /// Takes ownership of the object of a control that no module object is attached to.
    void Own(std::unique_ptr<CWnd> pWnd) { m_pOwned = std::move(pWnd); }
    void Destroy();
    /// Called when the toolkit has destroyed a widget itself.
    void WidgetGone();

    /// Sends a message; DefWindowProc runs the given default.
    LRESULT Deliver(const MSG& msg, ToolkitDefault* pDefault);
    /// Translates an event to a message and delivers it; other events go to the toolkit.
    bool DeliverEvent(enmWidgetPart part, QEvent* pEvent, ToolkitDefault& toolkit);
    /// True if the toolkit has a default action for the current message, which is run.
    static bool RunToolkitDefault(const WindowCore* pCore);
    static const MSG* MessageInHand();

    void Command(UINT code);
    LRESULT Notify(NMHDR& header, UINT code);
    bool PreTranslate(MSG& msg);

    void Post(UINT message, WPARAM wParam, LPARAM lParam);
    void StartTimerOf(DWORD_PTR id, UINT milliseconds);
    bool StopTimerOf(DWORD_PTR id);

    /// In parent coordinates for a child, else in module screen coordinates.
    QRect GeometryNow() const;
    void TakeGeometry(const QRect& rect);
    /// Lets the handlers adjust a position, then applies it.
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
    std::unordered_map<int, DWORD_PTR> m_timers; ///< by the toolkit's timer ids
    std::unique_ptr<CWnd> m_pOwned;
};

/// Moves and sizes a widget; hidden widgets get the resize event at once, too.
void ApplyGeometry(QWidget* pWidget, const QRect& rect);

/// A widget whose events are first delivered as messages.
template <class Base>
class Hooked : public Base, public WidgetRole {
public:
    explicit Hooked(QWidget* pParent, enmWidgetPart part = enmWidgetPart::Whole)
        : Base(pParent), m_part(part) {}
    // NOLINTNEXTLINE(bugprone-exception-escape): exceptions of handlers end the program here
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

/// The same for scrollable widgets, whose viewport gets paint and mouse events.
template <class Base>
class HookedArea : public Hooked<Base> {
public:
    using Hooked<Base>::Hooked;

protected:
    bool viewportEvent(QEvent* pEvent) override {
        return this->Route(pEvent, [this](QEvent* p) { return this->Base::viewportEvent(p); });
    }
};

/// The widget of a control if it is of the given type, else null.
template <class Widget>
Widget* WidgetOf(const CWnd& wnd) {
    return wnd.Core() ? dynamic_cast<Widget*>(wnd.Core()->Outer()) : nullptr;
}
