#include <gtest/gtest.h>

#include "practice/terminal/MaskedSettings.h"

using practice::terminal::MaskedSettings;

TEST(MaskedSettings, OfAValueTheShapeStays) {
  EXPECT_EQ(MaskedSettings(L"IATANumber=80246878"), L"IATANumber=99999999");
  EXPECT_EQ(MaskedSettings(L"OPText=\"Call 08-12, SMITH\""), L"OPText=\"XXXX 99-99, XXXXX\"");
}

TEST(MaskedSettings, SectionsAndKeysStay) {
  EXPECT_EQ(MaskedSettings(L"[ARNAG2100]\r\nCityCode=STO\r\n"), L"[ARNAG2100]\r\nCityCode=XXX\r\n");
}

TEST(MaskedSettings, YesAndNoStay) {
  EXPECT_EQ(MaskedSettings(L"PrintPNR=Yes\r\nPanelMode= no \r\n"),
            L"PrintPNR=Yes\r\nPanelMode= no \r\n");
}

TEST(MaskedSettings, AValueThatOnlyBeginsLikeYesIsMasked) {
  EXPECT_EQ(MaskedSettings(L"OPText=Yes please"), L"OPText=XXX XXXXXX");
}

TEST(MaskedSettings, WhatIsBehindTheFirstEqualsSignIsTheValue) {
  EXPECT_EQ(MaskedSettings(L"OPText=A=B"), L"OPText=X=X");
}

TEST(MaskedSettings, CommentsAndLinesWithoutAKeyAreMaskedWhole) {
  EXPECT_EQ(MaskedSettings(L"; OPText=CARD 1234\n4567\n"), L"; XXXXXX=XXXX 9999\n9999\n");
}

TEST(MaskedSettings, EmptyLinesStayAndNothingIsAdded) {
  EXPECT_EQ(MaskedSettings(L""), L"");
  EXPECT_EQ(MaskedSettings(L"\r\n\r\n[A]"), L"\r\n\r\n[A]");
}
