// The named values of an entity.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

#include "platform/Api.h"

/// Number of an attribute name; the same in all databases of a process.
enum class AcDbNameId : std::uint32_t {};

/// The number of a name, assigned at its first use. Names are UTF-8 and case-sensitive.
/// Thread-safe. Throws std::length_error after 2^24 names.
PLATFORM_API AcDbNameId AcDbIntern(std::string_view name);
/// The number of a name read from another program's file. The names that link entities to systems
/// of the drawing ("SYSTEMID" and others) are reserved for the drawing's own entities; foreign ones
/// get a trailing "_".
PLATFORM_API AcDbNameId AcDbInternForeign(std::string_view name);
/// Valid until the process ends; empty for an unassigned number.
PLATFORM_API std::string_view AcDbNameOf(AcDbNameId id);

/// An attribute value, as a view: it does not own its text.
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
    /// Integers are converted; nothing for a text.
    std::optional<double> asReal() const;
    /// Real numbers are converted if they are whole and in range.
    std::optional<std::int64_t> asInteger() const;
    /// Empty if it is not a text.
    std::string_view asText() const { return m_kind == Kind::Text ? m_text : std::string_view(); }

private:
    Kind m_kind = Kind::Null;
    double m_real = 0;
    std::int64_t m_integer = 0;
    std::string_view m_text;
};

/// Named values in the order they were set. Each takes sixteen bytes, plus the characters of texts
/// longer than eight bytes. Copies are deep.
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
    /// A null value if the name does not exist.
    AcDbValue get(AcDbNameId name) const;
    bool has(AcDbNameId name) const;
    /// Adds or replaces. A null value is stored as such. The text may belong to these attributes
    /// themselves. Throws std::length_error for a text of 4 GiB or more.
    void set(AcDbNameId name, const AcDbValue& value);
    /// False if the name did not exist.
    bool remove(AcDbNameId name);
    void reserve(std::size_t count);
    /// What they take in memory beside the object itself.
    std::size_t bytes() const;

private:
    struct Slot;
    struct FreeBlock;
    struct Block; ///< header with counts, followed by the slots: one allocation for all values
    Slot* find(AcDbNameId name) const;
    /// Returns the old block, which the caller frees.
    Block* relocate(std::size_t capacity);
    Block* m_pBlock = nullptr;
};
