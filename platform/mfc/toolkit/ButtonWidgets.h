// The widgets of buttons. For sources only.
#pragma once

#include <QCheckBox>
#include <QPushButton>

#include "platform/mfc/toolkit/WindowCore.h"

/// Common part of push buttons and check boxes.
template <class Base>
class ButtonBase : public Hooked<Base> {
public:
    ButtonBase(QWidget* pParent, UINT style)
        : Hooked<Base>(pParent), m_automatic((style & BS_TYPEMASK) == BS_AUTOCHECKBOX) {
        const bool checks = m_automatic || (style & BS_TYPEMASK) == BS_CHECKBOX;
        this->setCheckable(checks);
        QObject::connect(this, &QAbstractButton::clicked, this, [this] {
            if (WindowCore* const pCore = this->Core()) {
                pCore->Command(BN_CLICKED);
            }
        });
    }
    QString Caption() const override { return this->text(); }
    void SetCaption(const QString& text) override { this->setText(text); }
    bool Press() override {
        if (this->isCheckable()) {
            return false;
        }
        this->click();
        return true;
    }

protected:
    void nextCheckState() override {
        if (m_automatic) {
            Base::nextCheckState();
        }
    }

private:
    bool m_automatic;
};

class PushButtonWidget final : public ButtonBase<QPushButton> {
public:
    PushButtonWidget(QWidget* pParent, UINT style);
    void SetFlat(bool flat);
    void SetGap(int pixels);

protected:
    void paintEvent(QPaintEvent* pEvent) override;

private:
    void PaintWithGap(QPainter& painter) const;

    bool m_ownerDrawn;
    bool m_flat = false;
    int m_gap = 0;
};

using CheckBoxWidget = ButtonBase<QCheckBox>;
