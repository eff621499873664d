#include <gtest/gtest.h>

#include "practice/host/Holdings.h"

namespace practice {
namespace {

constexpr std::wstring_view kBooking =
    L"NM SMITH/JOHN MR\nSG SK1234 Y 15MAR07 ARN CPH HK1\nTR LOCATOR ABC123\n";

struct LoadedHost : Host {
  LoadedHost() { LoadBooking(kBooking); }
};

TEST(Holdings, OfAHostThatWasAskedForNothingSaySo) {
  const LoadedHost host;
  EXPECT_EQ(PrintedText(host), L"NOTHING PRINTED");
  EXPECT_EQ(BackOfficeText(host), L"NOTHING SENT");
  EXPECT_EQ(QueuesText(host), L"ALL QUEUES ON AND EMPTY");
}

TEST(Holdings, HaveEveryPrintedCopyWhole) {
  LoadedHost host;
  const std::wstring pnr = host.Enter(L"RT");
  host.Enter(L"PRINT RT");
  host.Enter(L"PRINT TQT");
  EXPECT_EQ(PrintedText(host), L"COPY 1\r\n" + pnr + L"\r\nCOPY 2\r\nNO ACTIVE TST");
}

TEST(Holdings, HaveWhatWentToBackOfficeWithItsAssociation) {
  LoadedHost host;
  host.Enter(L"BT RETAIN [P1]");
  host.Enter(L"BT RETAIN");
  EXPECT_EQ(BackOfficeText(host), L"ABC123 RETAIN [P1]\r\nABC123 RETAIN");
}

TEST(Holdings, HaveEveryQueueThatHoldsAPNROrIsNotOn) {
  LoadedHost host;
  host.Enter(L"TR QUEUE CLOSED 8 AT CPHSK0001");
  host.Enter(L"TR QUEUE OFF 80 CAT 1 AT STOSK08AA");
  host.Enter(L"QE 80 CAT 1 AT STOSK08AA RETAIN");
  host.Enter(L"QE 81 AT STOSK08AA RETAIN");
  EXPECT_EQ(QueuesText(host),
            L"QUEUE 8 AT CPHSK0001, CLOSED: EMPTY\r\nQUEUE 80 CAT 1 AT STOSK08AA, OFF: ABC123\r\n"
            L"QUEUE 81 AT STOSK08AA, ON: ABC123");
}

TEST(Holdings, AreForgottenWithTheNextBooking) {
  LoadedHost host;
  host.Enter(L"PRINT RT");
  host.Enter(L"BT RETAIN");
  host.Enter(L"QE 80 AT STOSK08AA RETAIN");
  host.LoadBooking(kBooking);
  EXPECT_EQ(PrintedText(host), L"NOTHING PRINTED");
  EXPECT_EQ(BackOfficeText(host), L"NOTHING SENT");
  EXPECT_EQ(QueuesText(host), L"ALL QUEUES ON AND EMPTY");
}

}  // namespace
}  // namespace practice
