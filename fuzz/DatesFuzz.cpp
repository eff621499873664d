#include "fares/DateHelpers.h"
#include "fuzz/Input.h"
#include "fuzz/ProductBench.h"

// A host date: the day after it, or one report.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::ProductBench bench;
  fares::DateHelpers dates(bench.global, bench.platform, bench.errors);
  const std::wstring date = fuzz::TextOf(data, size);
  const std::wstring next = dates.AddDay(date);
  const bool isDate = common::Like(next, L"##[A-Z][A-Z][A-Z]##");
  fuzz::Require(isDate || next.empty(), "a date, or none");
  fuzz::Require(bench.desktop.log.size() == (next.empty() ? 1u : 0u), "one report, or none");
  return 0;
}
