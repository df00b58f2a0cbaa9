// The widget of display-only controls. For sources only.
#pragma once

#include <optional>

#include <QPixmap>

#include "platform/mfc/toolkit/WindowCore.h"

class StaticWidget final : public Hooked<QWidget> {
public:
    StaticWidget(QWidget* pParent, UINT style);

    QString Caption() const override { return m_text; }
    void SetCaption(const QString& text) override;
    void AppendLines(std::vector<std::wstring>& lines) const override;
    void SetPicture(const QPixmap& picture, bool fit);
    void SetTextColor(const QColor& color);
    void SetBackColor(const QColor& color);
    void SetAddress(const CString& address);
    const CString& Address() const { return m_address; }

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;
    void mouseReleaseEvent(QMouseEvent* pEvent) override;

private:
    void PaintText(QPainter& painter);
    void PaintPicture(QPainter& painter) const;
    bool TakesClicks() const;

    UINT m_style;
    QString m_text;
    QPixmap m_picture;
    bool m_fit = false;
    std::optional<QColor> m_textColor;
    std::optional<QColor> m_backColor;
    CString m_address;
};
