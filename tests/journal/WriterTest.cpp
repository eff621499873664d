#include <gtest/gtest.h>

#include "journal/FileName.h"
#include "journal/Writer.h"
#include "tests/journal/JournalBench.h"

namespace journal {
namespace {

struct WriterTest : testing::Test {
  HandClock clock;
  FolderInMemory folder;
  Writer writer{folder, clock};

  std::wstring Body() {
    const std::wstring heading = L"PTA_QX 1.2.3\nRun of 2007-02-20\n\n";
    const std::wstring text = folder.Text();
    EXPECT_TRUE(text.starts_with(heading));
    return text.substr(std::min(heading.size(), text.size()));
  }
};

TEST_F(WriterTest, PutsATimeBeforeOurWordsAndAMarkBeforeATextFromElsewhere) {
  writer.Open(L"1.2.3");
  clock.time += std::chrono::milliseconds(7005);
  writer.Write(L"Words");
  writer.Write(L"A text", L"one\rtwo\r\nthree\n\nfive\r\n");
  EXPECT_EQ(Body(),
            L"13:37:07.005 Words\n"
            L"13:37:07.005 A text:\n"
            L"    | one\n    | two\n    | three\n    | \n    | five\n");
}

TEST_F(WriterTest, LetsNoTextPassForALineOfOurs) {
  writer.Open(L"1.2.3");
  writer.Write(L"Record locator \"A\r\n13:37:00.000 Run ended\"");
  writer.Write(L"A text", L"A\u20282\u2029\u0085\x1B[2J\x0B");
  EXPECT_EQ(Body(),
            L"13:37:00.000 Record locator \"A\uFFFD\uFFFD13:37:00.000 Run ended\"\n"
            L"13:37:00.000 A text:\n"
            L"    | A\uFFFD2\uFFFD\uFFFD\uFFFD[2J\uFFFD\n");
}

TEST_F(WriterTest, MasksTextsAndNotItsOwnWords) {
  writer.Open(L"1.2.3");
  for (const wchar_t* payment : {L"INVOICE", L"ACCEPTED", L"UNKNOWN", L"1"}) {
    writer.masking().Declare(payment);
  }
  writer.Write(L"Entry 1 accepted");
  writer.Write(L"Unknown: 1", L"FP INVOICE");
  EXPECT_EQ(Body(),
            L"13:37:00.000 Entry 1 accepted\n"
            L"13:37:00.000 Unknown: 1:\n"
            L"    | FP <payment>\n");
}

TEST_F(WriterTest, WritesNothingBehindALineThatTheDiskDidNotTakeWhole) {
  writer.Open(L"1.2.3");
  writer.Write(L"Before");
  folder.takesText = false;
  writer.Write(L"Lost");
  folder.takesText = true;
  writer.Write(L"After");
  writer.NameAfter(L"ABC123");
  writer.Finish();
  EXPECT_EQ(Body(), L"13:37:00.000 Before\n");
}

TEST_F(WriterTest, GoesOnInTheSameFileUnderTheBookingsName) {
  writer.Open(L"1.2.3");
  writer.Write(L"Before");
  writer.NameAfter(L"ABC123");
  writer.Write(L"After");
  EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"PTA_2007-02-20_133700_ABC123.txt"});
  EXPECT_EQ(Body(), L"13:37:00.000 Before\n13:37:00.000 After\n");
}

TEST_F(WriterTest, KeepsItsNameWhenAnotherBookingIsRead) {
  writer.Open(L"1.2.3");
  writer.NameAfter(L"ABC123");
  writer.NameAfter(L"XYZ789");
  EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"PTA_2007-02-20_133700_ABC123.txt"});
}

TEST_F(WriterTest, KeepsEveryLineWhenItCanNotBeRenamedAndTriesAgainAtTheEnd) {
  writer.Open(L"1.2.3");
  folder.takesNames = false;
  writer.NameAfter(L"ABC123");
  writer.Write(L"After");
  EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"PTA_2007-02-20_133700.txt"});
  EXPECT_EQ(Body(), L"13:37:00.000 After\n");
  folder.takesNames = true;
  writer.Finish();
  EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"PTA_2007-02-20_133700_ABC123.txt"});
}

TEST_F(WriterTest, TakesTheNextNumberWhenANameIsTaken) {
  folder.files = {{L"PTA_2007-02-20_133700.txt", "1"}, {L"PTA_2007-02-20_133700_ABC123.txt", "2"}};
  writer.Open(L"1.2.3");
  EXPECT_TRUE(folder.files.contains(L"PTA_2007-02-20_133700-2.txt"));
  writer.NameAfter(L"ABC123");
  EXPECT_TRUE(folder.files.contains(L"PTA_2007-02-20_133700_ABC123-2.txt"));
  EXPECT_EQ(folder.files[L"PTA_2007-02-20_133700.txt"], "1");
  EXPECT_EQ(folder.files[L"PTA_2007-02-20_133700_ABC123.txt"], "2");
}

TEST_F(WriterTest, AsksAFolderOutOfReachOnce) {
  folder.takesFiles = false;
  writer.Open(L"1.2.3");
  EXPECT_EQ(folder.namesTried, 1);
}

TEST_F(WriterTest, AsksOnceForANameThatCanNotBeHadNow) {
  writer.Open(L"1.2.3");
  folder.takesNames = false;
  folder.namesTried = 0;
  writer.NameAfter(L"ABC123");
  EXPECT_EQ(folder.namesTried, 1);
}

TEST_F(WriterTest, GivesUpAfterAHundredNamesThatAreTaken) {
  for (int number = 1; number <= 100; ++number) {
    folder.files[FileName(clock.Now(), L"", number)] = "another's";
  }
  writer.Open(L"1.2.3");
  EXPECT_EQ(folder.namesTried, 100);
  EXPECT_EQ(folder.files.size(), 100u);
}

TEST_F(WriterTest, KeepsItsFirstNameWhenAHundredOfTheBookingsAreTaken) {
  writer.Open(L"1.2.3");
  for (int number = 1; number <= 100; ++number) {
    folder.files[FileName(clock.Now(), L"ABC123", number)] = "another's";
  }
  folder.namesTried = 0;
  writer.NameAfter(L"ABC123");
  EXPECT_EQ(folder.namesTried, 100);
  EXPECT_TRUE(folder.files.contains(L"PTA_2007-02-20_133700.txt"));
}

TEST_F(WriterTest, IsNotNamedAfterALocatorThatIsNoPlainWord) {
  writer.Open(L"1.2.3");
  writer.NameAfter(L"..\\..\\X");
  writer.Finish();
  EXPECT_EQ(folder.Names(), std::vector<std::wstring>{L"PTA_2007-02-20_133700.txt"});
}

TEST_F(WriterTest, WritesNothingWhereNoFileCanBeMade) {
  folder.takesFiles = false;
  writer.Open(L"1.2.3");
  writer.Write(L"Words");
  writer.Write(L"Words", L"text");
  writer.Secure();
  writer.NameAfter(L"ABC123");
  writer.Finish();
  EXPECT_TRUE(folder.files.empty());
}

TEST(Seconds, HaveThreeDecimals) {
  EXPECT_EQ(Seconds(std::chrono::milliseconds(0)), L"0.000 s");
  EXPECT_EQ(Seconds(std::chrono::milliseconds(61005)), L"61.005 s");
}

}  // namespace
}  // namespace journal
