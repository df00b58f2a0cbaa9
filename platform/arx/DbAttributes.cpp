#include "platform/arx/DbAttributes.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>
#include <stdexcept>
#include <utility>

namespace {

using Kind = AcDbValue::Kind;
constexpr unsigned kNameBits = 24;
constexpr std::uint32_t kNameMask = (1U << kNameBits) - 1;
constexpr std::size_t kInlineLetters = 8;

} // namespace

std::optional<double> AcDbValue::asReal() const {
    switch (m_kind) {
    case Kind::Real:
        return m_real;
    case Kind::Integer:
        return static_cast<double>(m_integer);
    default:
        return std::nullopt;
    }
}

std::optional<std::int64_t> AcDbValue::asInteger() const {
    constexpr double kLimit = 9223372036854775808.0; // 2^63
    if (m_kind == Kind::Integer) {
        return m_integer;
    }
    if (m_kind == Kind::Real && m_real >= -kLimit && m_real < kLimit &&
        std::trunc(m_real) == m_real) {
        return static_cast<std::int64_t>(m_real);
    }
    return std::nullopt;
}

/// One value. Trivial, so that blocks of slots can be moved bytewise; the block's code must release
/// the slot's text explicitly.
struct AcDbAttributes::Slot {
    std::uint32_t tag; ///< kind in the upper bits, name in the lower ones
    std::uint32_t length;
    union {
        double real;
        std::int64_t integer;
        char letters[kInlineLetters];
        char* pLetters;
    };

    static Slot Make(AcDbNameId name, const AcDbValue& value);
    AcDbNameId Name() const { return AcDbNameId{tag & kNameMask}; }
    Kind ValueKind() const { return static_cast<Kind>(tag >> kNameBits); }
    bool OwnsLetters() const { return ValueKind() == Kind::Text && length > kInlineLetters; }
    void Release() const {
        if (OwnsLetters()) {
            delete[] pLetters;
        }
    }
    AcDbValue Value() const;

private:
    void SetText(std::string_view text);
};

AcDbAttributes::Slot AcDbAttributes::Slot::Make(AcDbNameId name, const AcDbValue& value) {
    Slot slot{};
    slot.tag = static_cast<std::uint32_t>(name) | static_cast<std::uint32_t>(value.kind())
                                                      << kNameBits;
    switch (value.kind()) {
    case Kind::Real:
        slot.real = *value.asReal();
        break;
    case Kind::Integer:
        slot.integer = *value.asInteger();
        break;
    case Kind::Text:
        slot.SetText(value.asText());
        break;
    case Kind::Null:
        break;
    }
    return slot;
}

void AcDbAttributes::Slot::SetText(std::string_view text) {
    if (text.size() > UINT32_MAX) {
        throw std::length_error("The text of an attribute is too long.");
    }
    length = static_cast<std::uint32_t>(text.size());
    if (length > kInlineLetters) {
        pLetters = new char[length];
    }
    if (length > 0) {
        std::memcpy(length > kInlineLetters ? pLetters : letters, text.data(), length);
    }
}

AcDbValue AcDbAttributes::Slot::Value() const {
    switch (ValueKind()) {
    case Kind::Real:
        return real;
    case Kind::Integer:
        return integer;
    case Kind::Text:
        return std::string_view(OwnsLetters() ? pLetters : letters, length);
    default:
        return {};
    }
}

struct AcDbAttributes::Block {
    std::uint32_t count;
    std::uint32_t capacity;

    Slot* Slots() { return reinterpret_cast<Slot*>(this + 1); }

    static Block* Make(std::size_t capacity) {
        static_assert(sizeof(Slot) == 16 && sizeof(Block) == 8 && alignof(Slot) == 8);
        void* const pRoom = ::operator new(sizeof(Block) + capacity * sizeof(Slot));
        return new (pRoom) Block{0, static_cast<std::uint32_t>(capacity)};
    }
};

/// Frees the block only: its slots have been moved.
struct AcDbAttributes::FreeBlock {
    void operator()(Block* pBlock) const { ::operator delete(pBlock); }
};

AcDbAttributes::AcDbAttributes(const AcDbAttributes& other) {
    const std::size_t count = other.size();
    if (count == 0) {
        return;
    }
    AcDbAttributes copy;
    copy.m_pBlock = Block::Make(count);
    for (std::size_t i = 0; i < count; ++i) {
        const Slot& slot = other.m_pBlock->Slots()[i];
        copy.m_pBlock->Slots()[i] = Slot::Make(slot.Name(), slot.Value());
        copy.m_pBlock->count = static_cast<std::uint32_t>(i + 1);
    }
    std::swap(m_pBlock, copy.m_pBlock);
}

AcDbAttributes::AcDbAttributes(AcDbAttributes&& other) noexcept
    : m_pBlock(std::exchange(other.m_pBlock, nullptr)) {}

AcDbAttributes& AcDbAttributes::operator=(AcDbAttributes other) noexcept {
    std::swap(m_pBlock, other.m_pBlock);
    return *this;
}

AcDbAttributes::~AcDbAttributes() {
    for (std::size_t i = 0; i < size(); ++i) {
        m_pBlock->Slots()[i].Release();
    }
    ::operator delete(m_pBlock);
}

std::size_t AcDbAttributes::size() const {
    return m_pBlock ? m_pBlock->count : 0;
}

AcDbAttributes::Item AcDbAttributes::at(std::size_t index) const {
    if (index >= size()) {
        throw std::out_of_range("The index of an attribute is out of range.");
    }
    const Slot& slot = m_pBlock->Slots()[index];
    return {slot.Name(), slot.Value()};
}

AcDbAttributes::Slot* AcDbAttributes::find(AcDbNameId name) const {
    for (std::size_t i = 0; i < size(); ++i) {
        if (m_pBlock->Slots()[i].Name() == name) {
            return m_pBlock->Slots() + i;
        }
    }
    return nullptr;
}

AcDbValue AcDbAttributes::get(AcDbNameId name) const {
    const Slot* const pSlot = find(name);
    return pSlot ? pSlot->Value() : AcDbValue();
}

bool AcDbAttributes::has(AcDbNameId name) const {
    return find(name) != nullptr;
}

void AcDbAttributes::set(AcDbNameId name, const AcDbValue& value) {
    if (Slot* const pSlot = find(name)) {
        // Created before the old value is released: the new value may refer to its text.
        const Slot slot = Slot::Make(name, value);
        pSlot->Release();
        *pSlot = slot;
        return;
    }
    const std::size_t count = size();
    std::unique_ptr<Block, FreeBlock> old;
    if (!m_pBlock || count == m_pBlock->capacity) {
        // Freed last: the value may refer to a text in it.
        old.reset(relocate(count + std::max<std::size_t>(2, count / 2)));
    }
    m_pBlock->Slots()[count] = Slot::Make(name, value);
    ++m_pBlock->count;
}

bool AcDbAttributes::remove(AcDbNameId name) {
    Slot* const pSlot = find(name);
    if (!pSlot) {
        return false;
    }
    pSlot->Release();
    Slot* const pEnd = m_pBlock->Slots() + m_pBlock->count;
    std::memmove(pSlot, pSlot + 1, static_cast<std::size_t>(pEnd - pSlot - 1) * sizeof(Slot));
    --m_pBlock->count;
    return true;
}

void AcDbAttributes::reserve(std::size_t count) {
    if (count > (m_pBlock ? m_pBlock->capacity : 0)) {
        const std::unique_ptr<Block, FreeBlock> old(relocate(count));
    }
}

std::size_t AcDbAttributes::bytes() const {
    std::size_t sum = m_pBlock ? sizeof(Block) + m_pBlock->capacity * sizeof(Slot) : 0;
    for (std::size_t i = 0; i < size(); ++i) {
        const Slot& slot = m_pBlock->Slots()[i];
        sum += slot.OwnsLetters() ? slot.length : 0;
    }
    return sum;
}

AcDbAttributes::Block* AcDbAttributes::relocate(std::size_t capacity) {
    Block* const pBlock = Block::Make(capacity);
    if (m_pBlock) {
        pBlock->count = m_pBlock->count;
        std::memcpy(pBlock->Slots(), m_pBlock->Slots(), m_pBlock->count * sizeof(Slot));
    }
    return std::exchange(m_pBlock, pBlock);
}
