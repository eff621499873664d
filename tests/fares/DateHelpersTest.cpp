#include <gtest/gtest.h>

#include "fares/DateHelpers.h"
#include "tests/support/RoomBench.h"

namespace fares {
namespace {

using Lines = std::vector<std::wstring>;
namespace global = hostlib::operations::script_global;

const std::wstring kReport27 =
    L"ScriptErrorReporter.1.18 ShowError(-2147221477, \"  PTA Script \", \"Error adding day!\", "
    L"16)";

struct DateBench : support::RoomBench {
  DateHelpers dates{RoomBench::global, scripted.platform, errors};
};

TEST(AddDay, AsksTheLibraryForBothForms) {
  DateBench bench;
  EXPECT_EQ(bench.dates.AddDay(L"15MAR07"), L"16MAR07");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ScriptGlobal.1.10 HostDateToText(\"15MAR07\") -> \"15 03 07\"",
                   L"ScriptGlobal.1.11 TextToHostDate(\"2007-03-16\") -> \"16MAR07\""}));
}

struct NextDay {
  const wchar_t* date;
  const wchar_t* next;
};

constexpr NextDay kDays[] = {
    {L"28FEB08", L"29FEB08"}, {L"28FEB07", L"01MAR07"}, {L"29FEB08", L"01MAR08"},
    {L"31DEC07", L"01JAN08"}, {L"31DEC99", L"01JAN00"}, {L"28FEB00", L"29FEB00"},
    {L"31JAN07", L"01FEB07"}, {L"31MAR07", L"01APR07"}, {L"30APR07", L"01MAY07"},
    {L"31MAY07", L"01JUN07"}, {L"30JUN07", L"01JUL07"}, {L"31JUL07", L"01AUG07"},
    {L"31AUG07", L"01SEP07"}, {L"30SEP07", L"01OCT07"}, {L"31OCT07", L"01NOV07"},
    {L"30NOV07", L"01DEC07"}, {L"01JAN70", L"02JAN70"}, {L"09SEP09", L"10SEP09"},
};

TEST(AddDay, GoesByTheCalendar) {
  DateBench bench;
  for (const auto& [date, next] : kDays) EXPECT_EQ(bench.dates.AddDay(date), next) << date;
}

TEST(AddDay, TheCenturyIsAlwaysTheTwentyFirst) {
  DateBench bench;
  bench.dates.AddDay(L"31DEC98");
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptGlobal.1.11 TextToHostDate(\"2099-01-01\") -> \"01JAN99\"");
}

class NoDate : public testing::TestWithParam<const wchar_t*> {};

TEST_P(NoDate, IsReportedAndGivesAnEmptyText) {
  DateBench bench;
  EXPECT_EQ(bench.dates.AddDay(GetParam()), L"");
  EXPECT_EQ(bench.TakeCalls().back(), kReport27);
  EXPECT_FALSE(bench.stop.isSet);
}

INSTANTIATE_TEST_SUITE_P(Texts, NoDate,
                         testing::Values(L"", L"15", L"15mar07", L"15Mar07", L"15XXX07", L"29FEB07",
                                         L"31APR07", L"00JAN07", L"32JAN07", L"MAR07", L"15MAR",
                                         L"15MAR2007", L" 5MAR07"));

// A library that takes what ours refuses: the month is the table's all the same.
TEST(AddDay, AMonthThatIsNotInTheTableFailsWhateverTheLibrarySays) {
  DateBench bench;
  bench.scripted.Answer(global::kHostDateToText, L"15 03 07");
  bench.scripted.Answer(global::kTextToHostDate, L"16MAR07");
  EXPECT_EQ(bench.dates.AddDay(L"15mar07"), L"");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ScriptGlobal.1.10 HostDateToText(\"15mar07\") -> \"15 03 07\"", kReport27}));
}

TEST(AddDay, DayAndYearAreTheLibrarysAndTheMonthIsTheHosts) {
  DateBench bench;
  std::wstring given;
  bench.scripted.Answer(global::kHostDateToText, L"07/whatever/2011");
  bench.scripted.On(global::kTextToHostDate, [&](const hostlib::Arguments& a) {
    given = a[0].Text();
    return hostlib::Value(L"answer");
  });
  EXPECT_EQ(bench.dates.AddDay(L"15MAR07"), L"answer");
  EXPECT_EQ(given, L"2011-03-08");
}

TEST(AddDay, AnAnswerWithoutADayOrAYearIsReported) {
  for (const wchar_t* answer : {L"", L"1", L"XX 03 07", L"15 03 YY", L"-1 03 07", L"15 03 -1"}) {
    DateBench bench;
    bench.scripted.Answer(global::kHostDateToText, answer);
    EXPECT_EQ(bench.dates.AddDay(L"15MAR07"), L"") << answer;
    EXPECT_EQ(bench.TakeCalls().back(), kReport27) << answer;
  }
}

TEST(AddDay, AFailureOfTheLibraryIsReported) {
  DateBench bench;
  bench.scripted.Answer(global::kHostDateToText, L"15 03 07");
  bench.scripted.Fail(global::kTextToHostDate, 5, L"broken");
  EXPECT_EQ(bench.dates.AddDay(L"15MAR07"), L"");
  EXPECT_EQ(bench.TakeCalls().back(), kReport27);
}

}  // namespace
}  // namespace fares
