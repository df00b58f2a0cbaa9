// The column that holds what the columns of attributes cannot.
//
// A column has one type and no place for "there, but empty". A row whose attributes do not
// fit lists them all here, in their order, a line each:
//
//   cNAME          its column holds it as it is
//   nNAME          a null value
//   iNAME=12       a whole number, a real number, a text that its column does not hold,
//   rNAME=0.5      or does not hold as one
//   tNAME=a text
//
// A line "@single" in front says that a line has one point alone, which stands twice in the
// geometry. Other programs may change a column without knowing of this text: a value whose
// column no longer says the same is not taken from here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/arx/DbAttributes.h"

namespace Tessaly {

inline constexpr std::string_view kSinglePoint = "@single\n";

struct ExtraItem {
    enum class Where { Column, Here };
    std::string name;
    Where where = Where::Column;
    AcDbValue value; ///< its text points into `text`
    std::string text;
};

void AppendExtraColumn(std::string& extra, std::string_view name);
void AppendExtraValue(std::string& extra, std::string_view name, const AcDbValue& value);

/// Lines that make no sense are passed over.
std::vector<ExtraItem> ParseExtra(std::string_view extra);

/// Shortest text that reads as the same number; "nan" and "inf" as well.
std::string NumberText(double number);
std::string NumberText(std::int64_t number);

/// What a column of a kind holds of a value: null if nothing. A text that is made for it
/// lies in `scratch`.
AcDbValue ColumnValue(AcDbValue::Kind column, const AcDbValue& value, std::string& scratch);
/// The column gives the value back exactly.
bool IsHeldByColumn(AcDbValue::Kind column, const AcDbValue& value);
bool IsSameValue(const AcDbValue& a, const AcDbValue& b);

} // namespace Tessaly
