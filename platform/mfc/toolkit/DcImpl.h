// The implementation of a device context. For sources only.
#pragma once

#include <optional>

#include <QPainter>

#include "platform/mfc/DC.h"

class CDC::Impl {
public:
    explicit Impl(QPainter& on);
    explicit Impl(QWidget* pWidget);

    std::optional<QPainter> owned;
    QPainter& painter;
    CFont firstFont;
    const CPen firstPen{1, 0};
    const CBrush firstBrush{RGB(255, 255, 255)};
    const CFont* pFont = &firstFont;
    const CPen* pPen = &firstPen;
    const CBrush* pBrush = &firstBrush;
    COLORREF textColor;
    COLORREF backColor;
    int backMode = OPAQUE;
};

/// Creates a device context on a painter, which must outlive it.
std::unique_ptr<CDC::Impl> DrawWith(QPainter& painter);
