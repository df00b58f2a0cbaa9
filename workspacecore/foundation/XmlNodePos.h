// The record of one element in the index of an XmlDocument.
#pragma once

#include <cstdint>

namespace Orvane {

/// Type of a token. The last three are returned by the scanner only; the others are also the
/// types of the current node.
enum enmXmlNodeType : int {
    XML_NODE_NONE = 0,
    XML_NODE_ELEMENT = 1,
    XML_NODE_TEXT = 2,
    XML_NODE_WHITESPACE = 4,
    XML_NODE_CDATA = 8,
    XML_NODE_INSTRUCTION = 16,
    XML_NODE_COMMENT = 32,
    XML_NODE_DOCTYPE = 64,
    XML_NODE_LONE_END_TAG = 128,

    XML_TOKEN_END_TAG = 0,
    XML_TOKEN_ERROR = -1,
    XML_TOKEN_END_OF_TEXT = -2
};

/// Flag bits of XmlNodePos::flags, above the nesting level.
enum enmXmlNodeFlag : std::uint32_t {
    XML_FLAG_LEVEL_MASK = 0xFFFF,
    XML_FLAG_EMPTY = 0x10000, ///< a single tag: <x/>
    XML_FLAG_DELETED = 0x20000,
    XML_FLAG_FIRST = 0x80000,       ///< first of its siblings
    XML_FLAG_NO_END_TAG = 0x100000, ///< never closed
    XML_FLAG_CONTENT_ERROR = 0x200000,
    XML_FLAG_ILL_FORMED = 0x800000 ///< on record 0: the document is ill-formed
};

/// One element: its position in the text, in wide characters, and its neighbours as record
/// numbers. 0 means none, because record 0 is the virtual root above the root element. Records
/// are not initialised when allocated.
struct XmlNodePos {
    std::int32_t start;
    std::int32_t length;
    std::int32_t tagLengths; ///< low 22 bits: start tag, high 10 bits: end tag
    std::uint32_t flags;
    std::int32_t parent;
    std::int32_t child;
    std::int32_t next;
    std::int32_t prev; ///< of a first child: the last child

    // Bit 20 is masked out on every read, so a start tag of 1,048,576 or more characters may read
    // as shorter. This is intentional: existing behaviour depends on it.
    int StartTagLength() const { return tagLengths & 0x2FFFFF; }
    int EndTagLength() const { return tagLengths >> 22; }
    void SetTagLengths(int nStartTag, int nEndTag) {
        tagLengths = static_cast<std::int32_t>((static_cast<std::uint32_t>(nStartTag) & 0x3FFFFF) |
                                               static_cast<std::uint32_t>(nEndTag) << 22);
    }
    void SetEndTagLength(int nEndTag) { SetTagLengths(tagLengths, nEndTag); }
    int Level() const { return static_cast<int>(flags & XML_FLAG_LEVEL_MASK); }
    bool IsEmpty() const { return StartTagLength() == length; }
};
static_assert(sizeof(XmlNodePos) == 32);

} // namespace Orvane
