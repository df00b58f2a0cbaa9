// The named values of an entity.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/Api.h"

/// Number of an attribute's name; the same in all databases of a process.
enum class AcDbNameId : std::uint32_t {};

/// The number of a name, given at its first use. Names are UTF-8 and told apart by case.
/// From any thread. Throws std::length_error once there are 2^24 names.
PLATFORM_API AcDbNameId AcDbIntern(std::string_view name);
/// The number for a name in what another program has written. The names by which entities
/// belong to systems of the drawing ("SYSTEMID" and others) are kept for the drawing's own
/// entities: theirs get a "_" behind them.
PLATFORM_API AcDbNameId AcDbInternForeign(std::string_view name);
/// Valid to the end of the process; empty for a number that was never given.
PLATFORM_API std::string_view AcDbNameOf(AcDbNameId id);

/// A value as it is handed in and out. A view: a text belongs to whoever made it.
class PLATFORM_API AcDbValue {
public:
    enum class Kind : std::uint8_t { Null, Real, Integer, Text };

    AcDbValue() = default;
    AcDbValue(double real) : m_kind(Kind::Real), m_real(real) {}
    AcDbValue(std::int64_t integer) : m_kind(Kind::Integer), m_integer(integer) {}
    AcDbValue(int integer) : AcDbValue(std::int64_t{integer}) {}
    AcDbValue(std::string_view utf8) : m_kind(Kind::Text), m_text(utf8) {}
    AcDbValue(const char* utf8) : AcDbValue(std::string_view(utf8)) {}

    Kind kind() const { return m_kind; }
    bool isNull() const { return m_kind == Kind::Null; }
    /// An integer counts as a number; nothing for a text.
    std::optional<double> asReal() const;
    /// A real number counts if it is whole and fits.
    std::optional<std::int64_t> asInteger() const;
    /// Empty unless it is a text.
    std::string_view asText() const { return m_kind == Kind::Text ? m_text : std::string_view(); }

private:
    Kind m_kind = Kind::Null;
    double m_real = 0;
    std::int64_t m_integer = 0;
    std::string_view m_text;
};

/// Named values in the order in which they were set; sixteen bytes each, and the letters of
/// texts that are longer than eight bytes. Copies are deep.
class PLATFORM_API AcDbAttributes {
public:
    struct Item {
        AcDbNameId name;
        AcDbValue value; ///< its text is valid until the attributes change
    };

    AcDbAttributes() = default;
    AcDbAttributes(const AcDbAttributes& other);
    AcDbAttributes(AcDbAttributes&& other) noexcept;
    AcDbAttributes& operator=(AcDbAttributes other) noexcept;
    ~AcDbAttributes();

    std::size_t size() const;
    Item at(std::size_t index) const;
    /// A null value if there is none of the name.
    AcDbValue get(AcDbNameId name) const;
    bool has(AcDbNameId name) const;
    /// Adds or replaces. A null value is kept as one. The text may be one of these attributes'
    /// own. Throws std::length_error for a text of 4 GiB or more.
    void set(AcDbNameId name, const AcDbValue& value);
    /// False if there was none.
    bool remove(AcDbNameId name);
    void reserve(std::size_t count);

private:
    struct Slot;
    struct FreeBlock;
    struct Block; ///< header with counts, slots behind it: one allocation for all values
    Slot* find(AcDbNameId name) const;
    /// Returns the old block, which the caller frees.
    Block* relocate(std::size_t capacity);
    Block* m_pBlock = nullptr;
};
