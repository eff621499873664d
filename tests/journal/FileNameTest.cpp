#include <gmock/gmock.h>

#include "journal/FileName.h"
#include "tests/journal/JournalBench.h"

namespace journal {
namespace {

using namespace std::chrono_literals;
using std::chrono::year_month_day;

constexpr year_month_day kDay{std::chrono::year(2007), std::chrono::month(2), std::chrono::day(20)};
const Moment kStart{kDay, 13h + 7min + 5s + 12ms};

TEST(FileName, IsOfDateTimeAndLocator) {
  EXPECT_EQ(FileName(kStart, L"ABC123", 1), L"PTA_2007-02-20_130705_ABC123.txt");
}

TEST(FileName, HasNoLocatorBeforeItIsKnownAndANumberWhenItIsTaken) {
  EXPECT_EQ(FileName(kStart, L"", 1), L"PTA_2007-02-20_130705.txt");
  EXPECT_EQ(FileName(kStart, L"", 2), L"PTA_2007-02-20_130705-2.txt");
  EXPECT_EQ(FileName(kStart, L"ABC123", 12), L"PTA_2007-02-20_130705_ABC123-12.txt");
}

TEST(FileName, TakesNoLocatorThatIsNoPlainWord) {
  EXPECT_EQ(LocatorForName(L"ABC123"), L"ABC123");
  for (const wchar_t* locator : {L"..\\X", L"../X", L"C:X", L"A B", L"A.B", L"A*", L"Å1",
                                 L"A\u202EB", L"ABCDEFGHI", L"A\nB", L"A-2"}) {
    EXPECT_EQ(LocatorForName(locator), L"") << common::ToUtf8(locator);
  }
}

TEST(FileName, IsReadBack) {
  EXPECT_EQ(DayIn(FileName(kStart, L"", 1)), kDay);
  EXPECT_EQ(DayIn(FileName(kStart, L"", 2)), kDay);
  EXPECT_EQ(DayIn(FileName(kStart, L"ABC123", 1)), kDay);
  EXPECT_EQ(DayIn(FileName(kStart, L"abc123", 34)), kDay);
}

TEST(FileName, OfAnyOtherFormIsNotOurs) {
  for (const wchar_t* name :
       {L"", L"PTA_", L"PTA_2007-02-20_130705", L"PTA_2007-02-20_130705.txt.bak",
        L"PTA_2007-02-20_130705_.txt", L"PTA_2007-02-20_130705-.txt", L"pta_2007-02-20_130705.txt",
        L"PTA_2007-02-20_13070.txt", L"PTA_2007-02-30_130705.txt", L"PTA_2007-2-20_130705.txt",
        L"PTA_2007-02-20_130705_ABCDEFGHI.txt", L"..\\PTA_2007-02-20_130705.txt",
        L"PTA_2007-02-20_130705_A\\B.txt", L"PTA_2007-02-20_130705_A-B.txt", L"notes.txt",
        L"PTA_2007-13-20_130705.txt", L"PTA_20O7-02-20_130705.txt"}) {
    EXPECT_EQ(DayIn(name), std::nullopt) << common::ToUtf8(name);
  }
}

TEST(FileName, WithoutAMarkOrWithALetterInItsDateIsNotOurs) {
  for (const wchar_t* name : {L"PTA_200702-20_130705.txt", L"PTA_2007-0220_130705.txt",
                              L"PTA_2007-02-20130705.txt", L"PTA_2007-02-2O_130705.txt"}) {
    EXPECT_EQ(DayIn(name), std::nullopt) << common::ToUtf8(name);
  }
}

TEST(OldFiles, AreRemovedAfterThirtyDaysAndNothingElseIs) {
  FolderInMemory folder;
  folder.files = {{L"PTA_2007-01-21_235959_ABC123.txt", ""},  // thirty days: stays
                  {L"PTA_2007-01-20_000000_ABC123.txt", ""}, {L"PTA_2006-12-31_120000-2.txt", ""},
                  {L"PTA_2007-03-01_120000.txt", ""},  // a clock that was wrong
                  {L"PTA_2006-12-31_120000.txt.bak", ""},    {L"notes.txt", ""}};
  RemoveOldFiles(folder, kDay);
  EXPECT_THAT(folder.removed, testing::UnorderedElementsAre(L"PTA_2007-01-20_000000_ABC123.txt",
                                                            L"PTA_2006-12-31_120000-2.txt"));
}

}  // namespace
}  // namespace journal
