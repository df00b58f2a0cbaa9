// The widget of a combo box. For sources only.
#pragma once

#include <QComboBox>

#include "platform/mfc/toolkit/WindowCore.h"

class ComboWidget final : public Hooked<QComboBox> {
public:
    explicit ComboWidget(QWidget* pParent) : Hooked(pParent) {
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        QObject::connect(this, &QComboBox::activated, this, [this](int) {
            if (WindowCore* const pCore = Core()) {
                pCore->Command(CBN_SELCHANGE);
            }
        });
    }
    QString Caption() const override { return currentText(); }
    void AppendLines(std::vector<std::wstring>& lines) const override {
        if (currentIndex() >= 0) {
            lines.push_back(currentText().toStdWString());
        }
    }
};
