#ifdef _WIN32

#include <gtest/gtest.h>

#include <cstdlib>

#include "common/Text.h"
#include "platform/win32/WindowsPlatform.h"
#include "tests/fares/FaresBench.h"

// Under whatever locale the tests are run: the host's texts are the same.
namespace fares {
namespace {

using Lines = std::vector<std::wstring>;

TEST(UserLocale, TheSeparatorIsTheOneOfTheLocaleThatTheTestsRunUnder) {
  const char* separator = std::getenv("PTA_SEPARATOR");
  ASSERT_NE(separator, nullptr) << "to be run by ctest, which tells the locale's separator";
  EXPECT_EQ(GetDecimalSymbol(platform::WindowsPlatform()), common::FromUtf8(separator));
}

TEST(UserLocale, TheHostsTextsDoNotDependOnIt) {
  FaresBench bench(GetDecimalSymbol(platform::WindowsPlatform()));
  const tst::TSTInfo tst = FaresBench::TST(3);
  for (int reading = 0; reading < 2; ++reading) {
    bench.totals.strFare = L"SEK1000.5";
    bench.totals.strTaxList = L"SEK120.25XT;SEK40YQ;";
    bench.totals.strXFTax = L"LAX4.50";
    bench.totals.strTotalFare = L"SEK1165.25";
    bench.amounts.MultiplyTSTValues(tst);
    EXPECT_EQ(bench.totals.strFare, L"SEK3001.5");
    EXPECT_EQ(bench.totals.strTaxList, L"SEK360.75XT;SEK120YQ;");
    EXPECT_EQ(bench.totals.strXFTax, L"LAX13.5");
    EXPECT_EQ(bench.totals.strTotalFare, L"SEK3495.75");
    bench.sums.AddTSTValues();
  }
  EXPECT_EQ(bench.mco.strFare, L"SEK6004") << "3001.5 is 3002, twice";
  EXPECT_EQ(bench.mco.strXFTax, L"SEK27");
  EXPECT_EQ(bench.mco.strTotalFare, L"SEK6992");
  EXPECT_EQ(bench.TakeCalls(), Lines{});
}

}  // namespace
}  // namespace fares

#endif
