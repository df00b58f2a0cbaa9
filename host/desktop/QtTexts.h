// Between the texts of the system and those of the toolkit.
#pragma once

#include <QString>

#include "platform/win/String.h"

namespace Tessaly {

inline QString ToQt(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

inline CString FromQt(const QString& text) {
    return CString(text.toStdWString());
}

} // namespace Tessaly
