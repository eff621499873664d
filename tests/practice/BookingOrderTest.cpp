#include <gtest/gtest.h>

#include "practice/host/BookingOrder.h"

namespace practice {
namespace {

using Names = std::vector<std::wstring>;

TEST(BookingOrder, IsThatOfTheMenuFile) {
  EXPECT_EQ(InMenuOrder({L"a", L"b", L"c"}, L"c\na\nb\n"), (Names{L"c", L"a", L"b"}));
}

TEST(BookingOrder, PutsWhatTheMenuFileDoesNotHaveBehindInAlphabeticalOrder) {
  EXPECT_EQ(InMenuOrder({L"z", L"y", L"b", L"a"}, L"b\na\n"), (Names{L"b", L"a", L"y", L"z"}));
}

TEST(BookingOrder, PassesOverANameWithoutABooking) {
  EXPECT_EQ(InMenuOrder({L"a"}, L"gone\na\n"), (Names{L"a"}));
}

TEST(BookingOrder, IsAlphabeticalWithoutAMenuFile) {
  EXPECT_EQ(InMenuOrder({L"b", L"a"}, L""), (Names{L"a", L"b"}));
}

TEST(BookingOrder, DoesNotCountCommentsBlankLinesAndBlanks) {
  EXPECT_EQ(MenuNames(L"\xFEFF# easy\r\n\r\n  b \r\na\r\n"), (Names{L"b", L"a"}));
}

}  // namespace
}  // namespace practice
