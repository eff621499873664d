#include "fuzz/Input.h"
#include "practice/host/Host.h"
#include "practice/library/PnrDisplayText.h"

// Entries, one a line, into a host with a booking: every one has an answer, a refused one changes
// nothing, and the PNR can be shown and read at any time. The same text as a booking, too.

namespace {

constexpr std::wstring_view kBooking =
    L"NM SMITH/JOHN MR\nNM SMITH/ANNA MRS(INFSMITH/BABY)\n"
    L"SG SK1234 Y 15MAR07 ARN CPH HK2\nSG SK1423 Y 22MAR07 CPH ARN HK2\n"
    L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678\nTK TL 10MAR07\nAP STO 08-1234567\n"
    L"FP CASH\nFM 10\nFV SK\n"
    L"TS FARE SEK1000,IND F,TAX SEK120XT,TOTAL SEK1120,CALC STO SK CPH END,BASIS YRT,SALES SITI "
    L"[P1]\n"
    L"TM FEE 250,AMOUNT SEK1160,FOP CASH [P1 S3-4]\nTR LOCATOR ABC123\n";

void TakeEntries(const std::vector<std::wstring>& entries) {
  practice::Host host;
  host.LoadBooking(kBooking);
  for (const std::wstring& entry : entries) {
    const std::wstring before = host.PnrText();
    const std::wstring answer = host.Enter(entry);
    fuzz::Require(!answer.empty(), "every entry has an answer");
    const bool refused = answer.starts_with(L"REFUSED: ");
    fuzz::Require(!refused || host.PnrText() == before, "a refused entry changes nothing");
  }
  const std::wstring display = host.Enter(L"RT");
  const bool readable = practice::ReadPnrDisplay(display).has_value();
  fuzz::Require(readable || display == L"REFUSED: NO ACTIVE PNR", "the PNR can be read");
}

void TakeBooking(const std::wstring& text) {
  practice::Host host;
  try {
    host.LoadBooking(text);
  } catch (const practice::BookingError&) {
    fuzz::Require(!host.HasActivePnr(), "a refused booking leaves no PNR");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text = fuzz::TextOf(data, size);
  TakeEntries(fuzz::LinesOf(text));
  TakeBooking(text);
  return 0;
}
