// Tables of cases.
#pragma once

#include <tuple>
#include <vector>

/// The rows of a table, whose columns a loop names: for (const auto& [text, number] : rows).
template <class... Columns>
using Rows = std::vector<std::tuple<Columns...>>;
