#include "siblings/giscore/utility/XmlElement.h"

#include <QString>
#include <QXmlStreamReader>

#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/WholeNumber.h"

namespace Orvane {

namespace {

constexpr std::size_t kLongestText = 4U << 20U;
constexpr std::size_t kDeepest = 16;

CString ToText(QStringView text) {
    return text.toString().toStdWString();
}

void AppendValue(std::wstring& text, const CString& value) {
    for (const wchar_t c : value.View()) {
        switch (c) {
        case L'&':
            text += L"&amp;";
            break;
        case L'<':
            text += L"&lt;";
            break;
        case L'>':
            text += L"&gt;";
            break;
        case L'"':
            text += L"&quot;";
            break;
        case L'\t':
        case L'\n':
        case L'\r':
            text += FormatText(L"&#%d;", static_cast<int>(c));
            break;
        default:
            const bool isHalf = c >= 0xD800 && c <= 0xDFFF;
            if (c >= L' ' && !isHalf && c != 0xFFFE && c != 0xFFFF && c <= 0x10FFFF) {
                text += c;
            }
        }
    }
}

void AppendElement(std::wstring& text, const XmlElement& element) {
    text += L"<" + element.name.Str();
    for (const auto& [name, value] : element.attributes) {
        text += L" " + name.Str() + L"=\"";
        AppendValue(text, value);
        text += L"\"";
    }
    if (element.children.empty()) {
        text += L"/>";
        return;
    }
    text += L">";
    for (const XmlElement& child : element.children) {
        AppendElement(text, child);
    }
    text += L"</" + element.name.Str() + L">";
}

XmlElement ElementAt(const QXmlStreamReader& reader) {
    XmlElement element(ToText(reader.qualifiedName()));
    for (const QXmlStreamAttribute& attribute : reader.attributes()) {
        element.attributes.emplace_back(ToText(attribute.qualifiedName()),
                                        ToText(attribute.value()));
    }
    return element;
}

/// Reads to the end or to the first error, which the reader reports.
XmlElement ReadElements(QXmlStreamReader& reader) {
    XmlElement document;
    // Children are only appended to the last element, so pointers to open elements stay valid.
    std::vector<XmlElement*> open{&document};
    while (!reader.atEnd()) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::DTD) {
            reader.raiseError(QString::fromStdWString(MessageText(GisMsg::DocumentType).Str()));
        } else if (token == QXmlStreamReader::StartElement && open.size() > kDeepest) {
            reader.raiseError(QString::fromStdWString(MessageText(GisMsg::TooDeep).Str()));
        } else if (token == QXmlStreamReader::StartElement) {
            open.push_back(&open.back()->children.emplace_back(ElementAt(reader)));
        } else if (token == QXmlStreamReader::EndElement) {
            open.pop_back();
        }
    }
    return document;
}

} // namespace

CString XmlElement::Get(std::wstring_view attribute) const {
    for (const auto& [key, value] : attributes) {
        if (key.View() == attribute) {
            return value;
        }
    }
    return {};
}

std::optional<int> XmlElement::GetInt(std::wstring_view attribute) const {
    return WholeNumber(Get(attribute).View());
}

XmlElement& XmlElement::Set(const wchar_t* attribute, const CString& value) {
    attributes.emplace_back(attribute, value);
    return *this;
}

XmlElement& XmlElement::Set(const wchar_t* attribute, int value) {
    return Set(attribute, CString(FormatText(L"%d", value)));
}

CString WriteXml(const XmlElement& root) {
    std::wstring text;
    AppendElement(text, root);
    return text;
}

std::optional<XmlElement> ReadXml(std::wstring_view text, CString& reason) {
    if (text.size() > kLongestText) {
        reason = MessageText(GisMsg::TooLong);
        return std::nullopt;
    }
    QXmlStreamReader reader(QString::fromWCharArray(text.data(), static_cast<int>(text.size())));
    XmlElement document = ReadElements(reader);
    if (reader.hasError()) {
        // The parser's own messages are English only.
        reason =
            reader.error() == QXmlStreamReader::CustomError
                ? MessageText(GisMsg::AtLine, reader.lineNumber(), ToText(reader.errorString()))
                : MessageText(GisMsg::NotWellFormed, reader.lineNumber());
        return std::nullopt;
    }
    return std::move(document.children.front());
}

} // namespace Orvane
