#include "fuzz/Input.h"
#include "tests/fares/FaresBench.h"

// Amount texts of two TSTs: read, multiplied, added and made into the remark. Line by line: names,
// fare, equivalent fare, XF tax, total, tax list, and the same again for the second TST.

namespace {

using Lines = std::vector<std::wstring>;

void Fill(tst::TSTTotals& totals, const Lines& lines, std::size_t from) {
  totals = {};
  totals.strFare = fuzz::Line(lines, from);
  totals.strEquivalentFare = fuzz::Line(lines, from + 1);
  totals.strXFTax = fuzz::Line(lines, from + 2);
  totals.strTotalFare = fuzz::Line(lines, from + 3);
  totals.strTaxList = fuzz::Line(lines, from + 4);
}

std::int16_t NamesIn(const std::wstring& line) {
  return static_cast<std::int16_t>(line.empty() ? 1 : line[0] % 100);
}

void AddTST(fares::FaresBench& bench, const Lines& lines, std::size_t from) {
  tst::TSTInfo tst;
  tst.intNoNames = NamesIn(fuzz::Line(lines, from));
  Fill(bench.totals, lines, from + 1);
  bench.amounts.MultiplyTSTValues(tst);
  if (!bench.stop.isSet) bench.sums.AddTSTValues();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Lines lines = fuzz::LinesOf(fuzz::TextOf(data, size));
  for (const std::wstring_view symbol : {L",", L"."}) {
    fares::FaresBench bench(symbol);
    AddTST(bench, lines, 0);
    if (!bench.stop.isSet) AddTST(bench, lines, 6);
    if (!bench.stop.isSet) {
      bench.sums.JoinTaxes();
      bench.sums.CalculateTotalFare();
    }
    bench.sums.BuildPTATotalRemark();
    fares::AmountIn(fuzz::Line(lines, 1));
    // Nothing but a report: every failure is shown in the words of its procedure.
    fuzz::Require(bench.desktop.log.empty(), "no box of its own");
  }
  return 0;
}
