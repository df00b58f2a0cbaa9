#include "platform/mfc/Clipboard.h"

#include <algorithm>

#include <QApplication>
#include <QClipboard>
#include <QMimeData>

#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"

namespace {

constexpr UINT kFirstOwnFormat = 0xC000;

std::vector<QString>& OwnFormats() {
    static std::vector<QString> formats;
    return formats;
}

/// Empty for an unregistered number.
QString MimeTypeOf(UINT format) {
    const std::size_t place = format - kFirstOwnFormat;
    return format >= kFirstOwnFormat && place < OwnFormats().size() ? OwnFormats()[place]
                                                                    : QString();
}

const QMimeData* ClipboardNow() {
    AfxStartToolkit();
    return QApplication::clipboard()->mimeData();
}

} // namespace

UINT RegisterClipboardFormat(const wchar_t* name) {
    const QString type = QStringLiteral("application/x-tessaly-") +
                         QString::fromLatin1(ToQString(name).toUtf8().toHex());
    std::vector<QString>& formats = OwnFormats();
    const auto found = std::find(formats.begin(), formats.end(), type);
    const auto place = static_cast<UINT>(found - formats.begin());
    if (found == formats.end()) {
        formats.push_back(type);
    }
    return kFirstOwnFormat + place;
}

void CClipboardContent::SetData(UINT format, std::span<const std::byte> data) {
    m_data[format].assign(data.begin(), data.end());
}

void CClipboardContent::Put() const {
    AfxStartToolkit();
    auto* const pMime = new QMimeData; // ownership passes to the clipboard
    if (!m_text.empty()) {
        pMime->setText(ToQString(m_text));
    }
    for (const auto& [format, data] : m_data) {
        if (const QString type = MimeTypeOf(format); !type.isEmpty()) {
            pMime->setData(type, QByteArray(reinterpret_cast<const char*>(data.data()),
                                            static_cast<qsizetype>(data.size())));
        }
    }
    QApplication::clipboard()->setMimeData(pMime);
}

bool IsClipboardFormatAvailable(UINT format) {
    const QMimeData* const pMime = ClipboardNow();
    return pMime && (format == CF_UNICODETEXT
                         ? pMime->hasText()
                         : !MimeTypeOf(format).isEmpty() && pMime->hasFormat(MimeTypeOf(format)));
}

CString GetClipboardText() {
    const QMimeData* const pMime = ClipboardNow();
    return pMime ? ToCString(pMime->text()) : CString();
}

std::vector<std::byte> GetClipboardData(UINT format) {
    if (!IsClipboardFormatAvailable(format) || format == CF_UNICODETEXT) {
        return {};
    }
    const QByteArray data = ClipboardNow()->data(MimeTypeOf(format));
    const auto* const pFirst = reinterpret_cast<const std::byte*>(data.constData());
    return {pFirst, pFirst + data.size()};
}
