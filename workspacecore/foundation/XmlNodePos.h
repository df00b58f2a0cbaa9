// The record of one element in the index of an XmlDocument.
#pragma once

#include <cstdint>

namespace Orvane {

/// What stands at a place of the text. The last three are answered by the scanner alone;
/// the others are also the types of the current node.
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

/// Bits above the nesting level in XmlNodePos::flags.
enum enmXmlNodeFlag : std::uint32_t {
    XML_FLAG_LEVEL_MASK = 0xFFFF,
    XML_FLAG_EMPTY = 0x10000, ///< written as one tag: <x/>
    XML_FLAG_DELETED = 0x20000,
    XML_FLAG_FIRST = 0x80000,       ///< first of its siblings
    XML_FLAG_NO_END_TAG = 0x100000, ///< opened and never ended
    XML_FLAG_CONTENT_ERROR = 0x200000,
    XML_FLAG_ILL_FORMED = 0x800000 ///< on record 0: the document is ill-formed
};

/// One element: its place in the text, in wide characters, and its neighbours, as
/// record numbers. 0 stands for none, since record 0 is the virtual root above the
/// root element. Records are left unfilled where they are allocated.
struct XmlNodePos {
    std::int32_t start;
    std::int32_t length;
    std::int32_t tagLengths; ///< low 22 bits the start tag's, high 10 bits the end tag's
    std::uint32_t flags;
    std::int32_t parent;
    std::int32_t child;
    std::int32_t next;
    std::int32_t prev; ///< of a first child: the last child

    // Bit 20 is left out on every read, so a start tag of 1,048,576 characters and more may
    // read as shorter. That is meant: the lengths are to come out as they always have.
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
