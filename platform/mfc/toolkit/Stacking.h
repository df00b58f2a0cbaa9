// The order in which top-level windows were last brought to the front. For sources only.
#pragma once

#include <vector>

class QEvent;
class QWidget;

/// From the front to the back. It is all there is without a server that knows better.
const std::vector<QWidget*>& WindowsByUse();
/// Notes what an event does to a window of ours.
void NoteStacking(QWidget* pWidget, const QEvent* pEvent);
/// Brings a window or a child to the front of its kind.
void RaiseWidget(QWidget* pWidget);
void ForgetStacking(const QWidget* pWidget);
