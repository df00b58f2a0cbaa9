// The widget of a single-line text input. For sources only.
#pragma once

#include <QLineEdit>

#include "platform/mfc/toolkit/WindowCore.h"

class EditWidget final : public Hooked<QLineEdit> {
public:
    EditWidget(QWidget* pParent, UINT style) : Hooked(pParent) {
        setReadOnly((style & ES_READONLY) != 0);
    }
    QString Caption() const override { return text(); }
    void SetCaption(const QString& text) override { setText(text); }
    void AppendLines(std::vector<std::wstring>& lines) const override {
        lines.push_back(text().toStdWString());
    }
};
