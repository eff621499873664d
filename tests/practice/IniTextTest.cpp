#include <gtest/gtest.h>

#include "practice/library/IniText.h"

namespace practice {
namespace {

constexpr std::wstring_view kFile =
    L"; agency\r\n[Settings]\r\nIATANumber = 80246878 \r\nOPText=\"CHECK  \"\r\nEmpty=\r\n\r\n"
    L"[ARNAG2100]\r\nB.O.D.=Yes\r\n;CityCode=OSL\r\ncitycode=STO\r\n";

TEST(IniText, AValueIsReadWithoutTheBlanksAroundIt) {
  EXPECT_EQ(IniText(std::wstring(kFile)).Read(L"Settings", L"IATANumber"), L"80246878");
}

TEST(IniText, OnePairOfQuotesIsStrippedAndKeepsTheBlanksWithin) {
  EXPECT_EQ(IniText(std::wstring(kFile)).Read(L"Settings", L"OPText"), L"CHECK  ");
}

TEST(IniText, NamesAreComparedWithoutRegardToCase) {
  EXPECT_EQ(IniText(std::wstring(kFile)).Read(L"arnag2100", L"CityCode"), L"STO");
}

TEST(IniText, WhatIsMissingIsEmpty) {
  const IniText file{std::wstring(kFile)};
  EXPECT_EQ(file.Read(L"Settings", L"CityCode"), L"");
  EXPECT_EQ(file.Read(L"Other", L"B.O.D."), L"");
  EXPECT_EQ(file.Read(L"Settings", L"Empty"), L"");
  EXPECT_EQ(IniText().Read(L"Settings", L"IATANumber"), L"");
}

TEST(IniText, WritingChangesTheKeysLineAlone) {
  IniText file{std::wstring(kFile)};
  file.Write(L"ARNAG2100", L"B.O.D.", L"No");
  EXPECT_EQ(file.text(),
            L"; agency\r\n[Settings]\r\nIATANumber = 80246878 \r\nOPText=\"CHECK  "
            L"\"\r\nEmpty=\r\n\r\n[ARNAG2100]\r\nB.O.D.=No\r\n;CityCode=OSL\r\ncitycode=STO\r\n");
}

TEST(IniText, ANewKeyGoesToTheEndOfItsSection) {
  IniText file(L"[A]\r\nx=1\r\n\r\n[B]\r\ny=2\r\n");
  file.Write(L"A", L"z", L"3");
  EXPECT_EQ(file.text(), L"[A]\r\nx=1\r\nz=3\r\n\r\n[B]\r\ny=2\r\n");
}

TEST(IniText, ANewSectionGoesToTheEndOfTheFile) {
  IniText file(L"[A]\r\nx=1");
  file.Write(L"B", L"y", L"2");
  EXPECT_EQ(file.text(), L"[A]\r\nx=1\r\n[B]\r\ny=2\r\n");
  EXPECT_EQ(file.Read(L"B", L"y"), L"2");
}

TEST(IniText, WhatIsWrittenIsReadAgain) {
  for (const wchar_t* value : {L"", L" ", L"\t", L" leading", L"trailing ", L"\"quoted\"",
                               L"'quoted'", L"\"", L"\"half"}) {
    IniText file{std::wstring(kFile)};
    file.Write(L"Settings", L"OPText", value);
    EXPECT_EQ(file.Read(L"Settings", L"OPText"), value);
    file.Write(L"New", L"Key", value);
    EXPECT_EQ(file.Read(L"New", L"Key"), value);
  }
}

TEST(IniText, OnlyAValueThatNeedsQuotesGetsThem) {
  IniText file(L"[A]\r\n");
  file.Write(L"A", L"x", L"1 2");
  file.Write(L"A", L"y", L"1 ");
  EXPECT_EQ(file.text(), L"[A]\r\nx=1 2\r\ny=\"1 \"\r\n");
}

}  // namespace
}  // namespace practice
