#include "tests/tst/TSTBench.h"

namespace tst {
namespace {

Lines NumbersIn(const TSTCollection& tsts) {
  Lines numbers;
  for (const TSTInfo& tst : tsts) numbers.push_back(tst.strTSTNum);
  return numbers;
}

TSTInfo Numbered(const std::wstring& number) {
  TSTInfo tst;
  tst.strTSTNum = number;
  return tst;
}

TEST(TSTInfo, AFreshRecordIsEmpty) {
  const TSTInfo tst;
  const auto& [fareBasis, names, noNames, taxes, passengers, fmNumber, fm, fpNumber, fvNumber, fv,
               xf, indicator, calc, total, equivalent, fp, number, infant, fare] = tst;
  for (const std::wstring* text :
       {&fareBasis, &names, &taxes, &passengers, &fmNumber, &fm, &fpNumber, &fvNumber, &fv, &xf,
        &indicator, &calc, &total, &equivalent, &fp, &number, &fare}) {
    EXPECT_EQ(*text, L"");
  }
  EXPECT_EQ(noNames, 0);
  EXPECT_FALSE(infant);
}

TEST(TSTGeneral, AFreshRecordIsEmpty) {
  const TSTGeneral general;
  const auto& [multipleFP, segments, city, notValidAfter, flight, date, airport] = general;
  for (const std::wstring* text : {&segments, &city, &notValidAfter, &flight, &date, &airport}) {
    EXPECT_EQ(*text, L"");
  }
  EXPECT_FALSE(multipleFP);
}

TEST(TSTTotals, AFreshRecordIsEmpty) {
  const TSTTotals totals;
  const auto& [xf, last, first, total, taxes, equivalent, tour, selling, net, fare] = totals;
  for (const std::wstring* text :
       {&xf, &last, &first, &total, &taxes, &equivalent, &tour, &selling, &net, &fare}) {
    EXPECT_EQ(*text, L"");
  }
}

TEST(TSTCollection, KeepsTheOrderOfReading) {
  TSTCollection tsts;
  EXPECT_TRUE(tsts.IsEmpty());
  for (const wchar_t* number : {L"3", L"1", L"12"}) tsts.Add(Numbered(number));
  EXPECT_EQ(NumbersIn(tsts), (Lines{L"3", L"1", L"12"}));
}

TEST(TSTCollection, ASecondRecordUnderTheSameNumberIsAFailure) {
  TSTCollection tsts;
  tsts.Add(Numbered(L"1"));
  EXPECT_THROW(tsts.Add(Numbered(L"1")), common::RunTimeError);
  EXPECT_EQ(NumbersIn(tsts), Lines{L"1"});
}

}  // namespace
}  // namespace tst
