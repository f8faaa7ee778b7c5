// Prints one table: each row a figure with its goal, measured in this run.
#pragma once

#include "bench/row.h"

#include <span>

namespace kelvo::bench {

/// Measures the rows that `names` tells, all when it is empty; "--no-heading" may stand before
/// them. Returns the exit status: 1 when a goal is missed or a row could not be measured.
int printTable(const std::vector<Row>& rows, std::span<char*> names);

} // namespace kelvo::bench
