// Tables of test cases.
#pragma once

#include <tuple>
#include <vector>

/// Rows of a table; a loop names the columns: for (const auto& [text, number] : rows).
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;
