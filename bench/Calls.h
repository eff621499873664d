#pragma once

namespace bench {

/// Prints how many library calls a run makes, and how many more for each further name, TST and
/// remark. Counts: they are the same on every machine.
void PrintCalls();

}  // namespace bench
