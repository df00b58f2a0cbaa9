// Message maps: tables that assign member functions to messages.
//
//     const MessageMap* CDlgReport::GetMessageMap() const {
//         static constexpr MessageEntry kEntries[] = {
//             MapMessage<&CDlgReport::OnSize>(WM_SIZE),
//             MapCommand<&CDlgReport::OnReset>(111),
//             MapNotify<&CDlgReport::OnListClick>(NM_CLICK, 107),
//         };
//         static const MessageMap kMap{CDialog::GetMessageMap(), kEntries};
//         return &kMap;
//     }
#pragma once

#include <span>

#include "platform/Api.h"
#include "platform/mfc/Messages.h"

class CCmdTarget;
class CDC;
class CWnd;
class CBrush;
struct DroppedFiles;

using HBRUSH = const CBrush*;      ///< not owned; may be null
using HDROP = const DroppedFiles*; ///< valid while its message is being handled
using MessageThunk = LRESULT (*)(CCmdTarget*, WPARAM, LPARAM);

struct MessageEntry {
    UINT message;
    UINT code;
    UINT firstId;
    UINT lastId;
    MessageThunk thunk;
};

/// The table of one class, and that of its base class. Both are static.
struct MessageMap {
    const MessageMap* pBase;
    std::span<const MessageEntry> entries;
};

/// Base of all classes with a message map.
class PLATFORM_API CCmdTarget {
public:
    virtual ~CCmdTarget() = default;

protected:
    CCmdTarget() = default;
    virtual const MessageMap* GetMessageMap() const;
    /// The handler in the most derived class that has one; null if there is none.
    MessageThunk FindHandler(UINT message, UINT code, UINT id) const;
};

/// Data that the last parameter of WM_CTLCOLOR points to.
struct ControlColorQuery {
    CDC* pDC;
    CWnd* pControl;
    UINT type;
    HBRUSH result;
};

namespace MessageMapDetail {

enum class enmArguments { None, Raw, Size, Timer, Place, Mouse, Colors, Drop, Notify };

/// How the parameters of a message are passed to its handler.
consteval enmArguments ArgumentsOf(UINT message) {
    switch (message) {
    case WM_DESTROY:
    case WM_PAINT:
    case WM_CLOSE:
    case WM_COMMAND:
        return enmArguments::None;
    case WM_SIZE:
        return enmArguments::Size;
    case WM_TIMER:
        return enmArguments::Timer;
    case WM_WINDOWPOSCHANGING:
        return enmArguments::Place;
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_RBUTTONUP:
        return enmArguments::Mouse;
    case WM_CTLCOLOR:
        return enmArguments::Colors;
    case WM_DROPFILES:
        return enmArguments::Drop;
    case WM_NOTIFY:
    case kReflectedNotify:
        return enmArguments::Notify;
    default:
        return enmArguments::Raw;
    }
}

template <auto Handler>
struct Thunk;

template <class C, void (C::*Handler)()>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::None;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM, LPARAM) {
        (static_cast<C*>(pTarget)->*Handler)();
        return 0;
    }
};

template <class C, LRESULT (C::*Handler)(WPARAM, LPARAM)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Raw;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM wParam, LPARAM lParam) {
        return (static_cast<C*>(pTarget)->*Handler)(wParam, lParam);
    }
};

template <class C, void (C::*Handler)(UINT, int, int)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Size;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM wParam, LPARAM lParam) {
        (static_cast<C*>(pTarget)->*Handler)(static_cast<UINT>(wParam), LowInt(lParam),
                                             HighInt(lParam));
        return 0;
    }
};

template <class C, void (C::*Handler)(DWORD_PTR)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Timer;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM wParam, LPARAM) {
        (static_cast<C*>(pTarget)->*Handler)(wParam);
        return 0;
    }
};

template <class C, void (C::*Handler)(WINDOWPOS*)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Place;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM, LPARAM lParam) {
        (static_cast<C*>(pTarget)->*Handler)(PointerOf<WINDOWPOS>(lParam));
        return 0;
    }
};

template <class C, void (C::*Handler)(UINT, CPoint)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Mouse;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM wParam, LPARAM lParam) {
        (static_cast<C*>(pTarget)->*Handler)(static_cast<UINT>(wParam),
                                             CPoint(LowInt(lParam), HighInt(lParam)));
        return 0;
    }
};

template <class C, HBRUSH (C::*Handler)(CDC*, CWnd*, UINT)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Colors;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM, LPARAM lParam) {
        auto& query = *PointerOf<ControlColorQuery>(lParam);
        query.result = (static_cast<C*>(pTarget)->*Handler)(query.pDC, query.pControl, query.type);
        return 0;
    }
};

template <class C, void (C::*Handler)(HDROP)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Drop;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM wParam, LPARAM) {
        (static_cast<C*>(pTarget)->*Handler)(
            PointerOf<const DroppedFiles>(static_cast<LPARAM>(wParam)));
        return 0;
    }
};

template <class C, void (C::*Handler)(NMHDR*, LRESULT*)>
struct Thunk<Handler> {
    static constexpr enmArguments kArguments = enmArguments::Notify;
    static LRESULT Call(CCmdTarget* pTarget, WPARAM, LPARAM lParam) {
        LRESULT result = 0;
        (static_cast<C*>(pTarget)->*Handler)(PointerOf<NMHDR>(lParam), &result);
        return result;
    }
};

template <auto Handler>
consteval MessageEntry Entry(UINT message, UINT code, UINT firstId, UINT lastId) {
    if (ArgumentsOf(message) != Thunk<Handler>::kArguments) {
        throw "the handler's arguments are not those of the message";
    }
    return {message, code, firstId, lastId, &Thunk<Handler>::Call};
}

} // namespace MessageMapDetail

template <auto Handler>
consteval MessageEntry MapMessage(UINT message) {
    return MessageMapDetail::Entry<Handler>(message, 0, 0, 0);
}
/// A click on a button or static, or a menu command.
template <auto Handler>
consteval MessageEntry MapCommand(UINT id) {
    return MessageMapDetail::Entry<Handler>(WM_COMMAND, BN_CLICKED, id, id);
}
template <auto Handler>
consteval MessageEntry MapCommandRange(UINT firstId, UINT lastId) {
    return MessageMapDetail::Entry<Handler>(WM_COMMAND, BN_CLICKED, firstId, lastId);
}
template <auto Handler>
consteval MessageEntry MapControl(UINT code, UINT id) {
    return MessageMapDetail::Entry<Handler>(WM_COMMAND, code, id, id);
}
template <auto Handler>
consteval MessageEntry MapNotify(UINT code, UINT id) {
    return MessageMapDetail::Entry<Handler>(WM_NOTIFY, code, id, id);
}
/// A notification that the control handles itself before its parent gets it.
template <auto Handler>
consteval MessageEntry MapNotifyReflect(UINT code) {
    return MessageMapDetail::Entry<Handler>(kReflectedNotify, code, 0, 0);
}
