#pragma once

#include "tests/faults/Oracle.h"

namespace faults {

/// What a run's journal says is what happened in it: its entries in their order, each with a state
/// that fits what the host took and what the program learned of it; a summary that counts these
/// states; and every box, with its answer, at its place among the entries.
Complaints OnTheJournal(const Shown& shown, const std::wstring& journal);

}  // namespace faults
