#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "common/Text.h"
#include "fares/ItemLists.h"
#include "tests/fares/FaresBench.h"

// What must hold for any booking, tried on many made at random, the same ones every time.
namespace fares {
namespace {

using Lines = std::vector<std::wstring>;

constexpr int kTries = 2000;

class Dice {
 public:
  int Roll(int low, int high) { return std::uniform_int_distribution(low, high)(engine_); }
  const std::wstring& OneOf(const Lines& texts) {
    return texts[static_cast<std::size_t>(Roll(0, static_cast<int>(texts.size()) - 1))];
  }
  std::wstring TextOf(std::wstring_view characters, int longest) {
    std::wstring text;
    for (int left = Roll(0, longest); left > 0; --left) {
      text +=
          characters[static_cast<std::size_t>(Roll(0, static_cast<int>(characters.size()) - 1))];
    }
    return text;
  }
  void Shuffle(std::vector<tst::TSTTotals>& tsts) { std::ranges::shuffle(tsts, engine_); }

 private:
  std::mt19937 engine_{20070315};
};

std::wstring Whole(Dice& dice) { return L"SEK" + std::to_wstring(dice.Roll(1, 99999)); }

// Whole amounts of one currency, and codes that occur neither in it nor in each other.
tst::TSTTotals PlainTST(Dice& dice) {
  static const Lines kCodes = {L"XT", L"YQ", L"DK", L"GB", L"ZV", L"UB"};
  tst::TSTTotals tst;
  tst.strFare = Whole(dice);
  tst.strNetFare = Whole(dice);
  tst.strTotalFare = Whole(dice);
  for (int left = dice.Roll(1, 4); left > 0; --left) {
    tst.strTaxList += Whole(dice) + dice.OneOf(kCodes) + L";";
  }
  return tst;
}

struct Sums {
  std::wstring fare, netFare, totalFare, calculated;
  Lines taxes;
  bool operator==(const Sums&) const = default;
};

// The first list is taken as it stands: a code in it twice stays twice. Summed by code, the taxes
// are then the same whichever TST came first.
Lines ByCode(const std::wstring& list) {
  std::map<std::wstring, int> amounts;
  for (const std::wstring& item : SplitItems(list)) {
    amounts[common::Right(item, 2)] += static_cast<int>(common::HostNumber(WithoutCurrency(item)));
  }
  Lines lines;
  for (const auto& [code, amount] : amounts) lines.push_back(code + std::to_wstring(amount));
  return lines;
}

Sums SumsOf(const std::vector<tst::TSTTotals>& tsts) {
  FaresBench bench;
  for (const tst::TSTTotals& tst : tsts) {
    bench.totals = tst;
    bench.sums.AddTSTValues();
  }
  bench.sums.JoinTaxes();
  const std::wstring total = bench.mco.strTotalFare;
  bench.sums.CalculateTotalFare();
  return {bench.mco.strFare, bench.mco.strNetFare, total, bench.mco.strTotalFare,
          ByCode(bench.mco.strTaxList)};
}

TEST(FaresProperties, TheOrderOfTheTSTsDoesNotChangeATotal) {
  Dice dice;
  for (int i = 0; i < kTries / 4; ++i) {
    std::vector<tst::TSTTotals> tsts;
    for (int left = dice.Roll(2, 5); left > 0; --left) tsts.push_back(PlainTST(dice));
    const Sums one = SumsOf(tsts);
    dice.Shuffle(tsts);
    ASSERT_EQ(SumsOf(tsts), one);
  }
}

TEST(FaresProperties, TheTotalIsTheFareAndTheTaxes) {
  Dice dice;
  for (int i = 0; i < kTries; ++i) {
    FaresBench bench;
    bench.totals = PlainTST(dice);
    bench.sums.AddTSTValues();
    bench.sums.JoinTaxes();
    bench.sums.CalculateTotalFare();
    double expected = common::HostNumber(WithoutCurrency(bench.totals.strFare));
    for (const std::wstring& item : SplitItems(bench.totals.strTaxList)) {
      expected += common::HostNumber(WithoutCurrency(item));
    }
    ASSERT_EQ(bench.mco.strTotalFare, L"SEK" + common::HostNumberText(expected));
  }
}

TEST(FaresProperties, ATextWithoutDigitsNeverBecomesANumber) {
  Dice dice;
  FaresBench bench;
  for (int i = 0; i < kTries; ++i) {
    const std::wstring text = dice.TextOf(L"ABCXT.,;- +eE\u00C5\u0661\t", 12);
    ASSERT_THROW(bench.amounts.ParseAmount(text), common::RunTimeError) << text;
    ASSERT_EQ(common::HostNumber(text), 0) << text;
    ASSERT_EQ(bench.Multiplied(text, 2), text);
    ASSERT_EQ(bench.TakeCalls(), Lines{kReport26}) << text;
  }
}

TEST(FaresProperties, WhatIsWrittenBackCanBeReadAgain) {
  Dice dice;
  for (const wchar_t* symbol : {L",", L"."}) {
    FaresBench bench(symbol);
    for (int i = 0; i < kTries; ++i) {
      const int hundredths = dice.Roll(0, 99999999);
      const int names = dice.Roll(1, 9);
      const double value = hundredths / 100.0;
      const std::wstring amount = L"SEK" + AmountText(value, bench.settings);
      const std::wstring product = bench.Multiplied(amount, names);
      ASSERT_EQ(product.find_first_not_of(L"0123456789.", 3), product.npos) << amount;
      ASSERT_DOUBLE_EQ(bench.amounts.ParseAmount(WithoutCurrency(product)), value * names)
          << amount;
      ASSERT_EQ(bench.Multiplied(product, 1), product) << "once is nothing changed";
    }
    ASSERT_EQ(bench.TakeCalls(), Lines{});
  }
}

TEST(FaresProperties, BothSymbolsGiveTheSameTexts) {
  Dice dice;
  FaresBench comma(L",");
  FaresBench point(L".");
  for (int i = 0; i < kTries; ++i) {
    const std::wstring amount = L"SEK" + dice.TextOf(L"0123456789..XT", 10);
    ASSERT_EQ(comma.Multiplied(amount, 3), point.Multiplied(amount, 3)) << amount;
  }
}

TEST(FaresProperties, WhateverTheHostWritesTheSumsReportOrHoldADigit) {
  Dice dice;
  for (int i = 0; i < kTries; ++i) {
    FaresBench bench;
    for (int tst = 0; tst < 3; ++tst) {
      bench.totals.strFare = L"SEK" + dice.TextOf(L"0123456789. XT-", 12);
      bench.totals.strTaxList = dice.TextOf(L"SEK0123456789.XTYQ;;", 40);
      bench.totals.strXFTax = dice.TextOf(L"LAX0123456789.;", 12);
      bench.sums.AddTSTValues();
    }
    bench.sums.JoinTaxes();
    bench.sums.CalculateTotalFare();
    if (bench.stop.isSet) continue;
    ASSERT_TRUE(common::Like(bench.mco.strFare, L"SEK#*")) << bench.mco.strFare;
    ASSERT_TRUE(common::Like(bench.mco.strTotalFare, L"SEK#*"));
  }
}

}  // namespace
}  // namespace fares
