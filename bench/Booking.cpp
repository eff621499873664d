#include "bench/Booking.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "common/Text.h"
#include "practice/host/Pnr.h"

namespace bench {
namespace {

/// Segments, MCO, ticketing, address, form of payment, commission and carrier.
constexpr int kOtherElements = 8;
/// What a run adds to a booking of this kind: FO, OP, an OSI and three remarks.
constexpr int kWrittenByTheRun = 6;

std::wstring ProjectFile(const std::string& path) {
  std::ifstream file(std::string(PTA_SOURCE_DIR) + "/" + path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  return common::FromUtf8(bytes);
}

// AA, AB, ... ZZ: no name is part of another.
std::wstring Letters(int number) {
  return {static_cast<wchar_t>(L'A' + number / 26), static_cast<wchar_t>(L'A' + number % 26)};
}

std::wstring Names(int count) {
  std::wstring lines;
  for (int i = 0; i < count; ++i) lines += L"NM SMITH/J" + Letters(i) + L" MR\n";
  return lines;
}

std::wstring Elements(int names) {
  const std::wstring status = L"HK" + std::to_wstring(names);
  return L"SG SK1234 Y 15MAR07 ARN CPH " + status + L" 0700 0810\nSG SK1423 Y 22MAR07 CPH ARN " +
         status +
         L" 1800 1910\nMCO SK,FM *C*10,FP CASH,FA 117-4012345678\nTK TL 10MAR07\n"
         L"AP STO 08-1234567\nFP CASH\nFM 10\nFV SK\n";
}

std::wstring Remarks(int count) {
  std::wstring lines;
  for (int i = 1; i <= count; ++i) {
    lines += L"RM REMARK " + std::to_wstring(i) + L" OF THE TRAVEL AGENCY\n";
  }
  return lines;
}

std::wstring Fare(const Size& size, int number) {
  const int names = size.names;
  std::wstring passengers = L"P1-" + std::to_wstring(names);
  if (size.tstEachName || names == 1) {
    passengers = L"P" + std::to_wstring((number - 1) % names + 1);
  }
  const std::wstring ownTax = size.taxEachTST ? L",TAX SEK9" + Letters(number) : L"";
  return L"TS FARE SEK" + std::to_wstring(1000 + number) + L",IND F,TAX SEK120XT,TAX SEK40YQ" +
         ownTax + L",TOTAL SEK" + std::to_wstring(1160 + number) +
         L",CALC STO SK CPH500SK STO500SEK1000END,BASIS YRT,SALES SITI [" + passengers + L" S" +
         std::to_wstring(names + 1) + L"-" + std::to_wstring(names + 2) + L"]\n";
}

}  // namespace

Booking OrdinaryBooking() {
  return {ProjectFile("practice/pnrs/ordinary.pnr"), ProjectFile("practice/pnrs/ordinary.ini")};
}

Booking BookingOf(const Size& size) {
  std::wstring entries = Names(size.names) + Elements(size.names) + Remarks(size.remarks);
  for (int i = 1; i <= size.tsts; ++i) entries += Fare(size, i);
  entries += L"TM FEE 250,AMOUNT SEK1160,FOP CASH [P1 S" + std::to_wstring(size.names + 1) + L"-" +
             std::to_wstring(size.names + 2) + L"]\nTR LOCATOR ABC123\n";
  return {entries, OrdinaryBooking().ini};
}

Size LargestSize() {
  const int names = static_cast<int>(practice::kMostNames);
  const int elements = static_cast<int>(practice::kMostElements);
  return {.names = names,
          .tsts = static_cast<int>(practice::kMostFares),
          .remarks = elements - names - kOtherElements - kWrittenByTheRun,
          .tstEachName = true};
}

}  // namespace bench
