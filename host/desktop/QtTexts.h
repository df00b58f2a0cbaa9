// Converts texts to and from Qt.
#pragma once

#include <QString>

#include "host/Texts.h"

namespace Tessaly {

inline QString ToQt(std::wstring_view text) {
    return QString::fromWCharArray(text.data(), static_cast<qsizetype>(text.size()));
}

/// The text of a message.
template <class... Args>
QString QtText(Msg message, const Args&... args) {
    return ToQt(Text(message, args...).View());
}

inline CString FromQt(const QString& text) {
    return CString(text.toStdWString());
}

} // namespace Tessaly
