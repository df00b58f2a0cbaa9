// Tracks the order in which top-level windows were brought to the front. For sources only.
#pragma once

#include <vector>

class QEvent;
class QWidget;

/// Front to back. Used alone where no window server provides the stacking order.
const std::vector<QWidget*>& WindowsByUse();
/// Updates the order after an event of one of our windows.
void NoteStacking(QWidget* pWidget, const QEvent* pEvent);
/// Raises a window, or a child among its siblings.
void RaiseWidget(QWidget* pWidget);
void ForgetStacking(const QWidget* pWidget);
