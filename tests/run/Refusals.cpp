#include "tests/run/Refusals.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "common/Text.h"

namespace run {
namespace {

constexpr std::wstring_view kStandardText =
    L"\\r\\rCorvane Central System gave an incorrect response to the last transaction.\\rPlease "
    L"verify the response given and correct if possible, or contact your help desk. \\rThe program "
    L"can not continue.";

constexpr std::wstring_view kQueueBox =
    LR"("PNR was not Queued correctly ! \r\nPress 'OK' to continue or 'Cancel' to terminate." 1 "  PTA Script ")";

}  // namespace

std::wstring_view StandardText() { return kStandardText; }

std::wstring RefusalReport(std::wstring_view firstLine) {
  return L"box ok \"" + std::wstring(firstLine) + std::wstring(kStandardText) +
         L"\" 48 \"  PTA Script \"\n";
}

std::vector<Refusal> AllRefusals() {
  const std::wstring queueBox(kQueueBox);
  return {
      {"OfTheTicketing", L"CH 6 OK/STOSK08AA/Q",
       RefusalReport(L"Error when updating the Ticketing Element!")},
      {"OfThePWCTRemark", L"CH 12 PWCT SK AT CPH A/P",
       RefusalReport(L"Error when updating the RM PWCT Element!")},
      {"OfTheCarrier", L"CH 10 SK", RefusalReport(L"Error when updating the FV Element!")},
      {"OfTheCommission", L"CH 9 10", RefusalReport(L"Error when updating the FM Element!")},
      {"OfTheFormOfPayment", L"CH 8 O/PT/CASH",
       RefusalReport(L"Error when updating the FP Element!")},
      {"OfTheFirstElements", L"FO 117-4012345678",
       RefusalReport(L"Error when entering the PNR elements!")},
      {"OfTheSecondElements", L"RM *FARE:1030",
       RefusalReport(L"Error when entering the PNR elements!")},
      {"OfATST", L"TU 1 ", RefusalReport(L"Error when updating the TST Record!")},
      {"OfThePrint", L"PRINT RT", RefusalReport(L"Error when sending the print PNR command!")},
      {"OfTheBOD", L"BT", L""},
      {"OfTheQueueWithOK", L"QE", L"box ok " + queueBox + L"\n"},
      {"OfTheQueueWithCancel", L"QE", L"box cancel " + queueBox + L"\n"},
      {"OfThePanel", L"TQTP", L""},
  };
}

int PlaceOf(const Lines& entries, std::wstring_view start) {
  const auto found = std::find_if(entries.begin(), entries.end(),
                                  [start](const auto& entry) { return entry.starts_with(start); });
  EXPECT_NE(found, entries.end()) << common::ToUtf8(start);
  return static_cast<int>(found - entries.begin()) + 1;
}

}  // namespace run
