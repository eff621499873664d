#include "tests/tst/TSTBench.h"
#include "tst/TSTList.h"

namespace tst {
namespace {

using hostlib::TextArray;

struct ListBench : support::RoomBench {
  TSTList Read(std::initializer_list<std::pair<std::wstring_view, hostlib::Value>> content) {
    return ReadTSTListAnswer(
        global, hostlib::ParameterBag(hostlib::Value(hostlib::ObjectPtr(scripted.Bag(content)))));
  }
};

TEST(TSTList, AnAnswerWithoutKeysIsNothing) {
  ListBench bench;
  const TSTList list = bench.Read({});
  EXPECT_FALSE(list.found);
  EXPECT_FALSE(list.isList);
  EXPECT_EQ(list.count, 0);
  EXPECT_EQ(list.tstNumber, L"");
  EXPECT_EQ(list.segments.UpperBound(), 0);
}

TEST(TSTList, TheCountMayBeANumberOrAText) {
  ListBench bench;
  EXPECT_EQ(bench.Read({{L"intKeyNoOfTST", std::int16_t{12}}}).count, 12);
  EXPECT_EQ(bench.Read({{L"intKeyNoOfTST", L"12"}}).count, 12);
  EXPECT_EQ(bench.Read({{L"intKeyNoOfTST", L""}}).count, 0);
}

TEST(TSTList, ACountOverThe16BitRangeIsAFailure) {
  ListBench bench;
  EXPECT_THROW(bench.Read({{L"intKeyNoOfTST", L"32768"}}), common::OverflowError);
}

TEST(TSTList, TheRowsComeInTheirOwnArrays) {
  ListBench bench;
  const TSTList list =
      bench.Read({{L"strKeyTSTSegment()", TextArray{.items = {L"S1", L"S2"}, .lowerBound = 1}},
                  {L"strKeyPersonNbrArray()", TextArray{.items = {L"P1", L"P2"}, .lowerBound = 1}},
                  {L"strKeyTSTNumArray()", TextArray{.items = {L"1", L"2"}, .lowerBound = 1}},
                  {L"strKeyFOPArray()", TextArray{.items = {L"F1", L"F2"}, .lowerBound = 1}}});
  EXPECT_EQ(list.segments.items, (Lines{L"S1", L"S2"}));
  EXPECT_EQ(list.persons.items, (Lines{L"P1", L"P2"}));
  EXPECT_EQ(list.tstNumbers.items, (Lines{L"1", L"2"}));
  EXPECT_EQ(list.fops.items, (Lines{L"F1", L"F2"}));
}

TEST(TSTList, RowsCountFrom1WhereverTheArrayBegins) {
  ListBench bench;
  const TextArray fromZero{.items = {L"unused", L"row 1"}};
  const TSTList list = bench.Read({{L"strKeyTSTSegment()", fromZero},
                                   {L"strKeyPersonNbrArray()", fromZero},
                                   {L"strKeyTSTNumArray()", fromZero},
                                   {L"strKeyFOPArray()", fromZero}});
  EXPECT_EQ(list.segments.items, Lines{L"row 1"});
  EXPECT_EQ(RowOf(list.segments, 1), L"row 1");
}

TEST(TSTList, AnIndexOutsideAnArrayIsAFailure) {
  const TextArray one{.items = {L"row 1"}, .lowerBound = 1};
  EXPECT_EQ(RowOf(one, 1), L"row 1");
  EXPECT_THROW(RowOf(one, 0), common::RunTimeError);
  EXPECT_THROW(RowOf(one, 2), common::RunTimeError);
}

}  // namespace
}  // namespace tst
