#pragma once

#include "tests/faults/Oracle.h"

namespace faults {

/// Whether so much was declared sensitive that the journal may have no room to remember it, and
/// withholds whole texts from then on.
enum class Withholding { kNever, kPossible };

/// What a run's journal says is what happened in it: its entries in their order, each with a state
/// that fits what the host took and what the program learned of it; a summary that counts these
/// states; and every box, with its answer, at its place among the entries.
Complaints OnTheJournal(const Shown& shown, const std::wstring& journal,
                        Withholding withholding = Withholding::kNever);

}  // namespace faults
