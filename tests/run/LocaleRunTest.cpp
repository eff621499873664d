#include <gtest/gtest.h>

#include "tests/run/Scenes.h"

// Whatever decimal separator the user has, the host gets the same amounts.
namespace run {
namespace {

/// Two fares of two passengers each, with decimals in everything that is multiplied or summed.
practice::RehearsalScene DecimalScene() {
  auto scene = OrdinaryScene();
  Change(scene.booking, L"NM SMITH/JOHN MR\n",
         L"NM SMITH/JOHN MR\nNM SMITH/ANNA MRS\nNM BERG/CARL MR\nNM BERG/DORA MRS\n");
  Change(scene.booking, L"HK1", L"HK4");
  Change(scene.booking,
         L"TS FARE SEK1000,IND F,TAX SEK120XT,TAX SEK40YQ,TOTAL SEK1160,CALC STO SK CPH500SK "
         L"STO500SEK1000END,BASIS YRT,SALES SITI [P1]\n",
         L"TS FARE SEK1000.25,IND F,TAX SEK120.75XT,TAX SEK40YQ,XF SEK4.5,TOTAL SEK1161.15,CALC "
         L"STO SK CPH500SK STO500.25SEK1000.25END,BASIS YRT,SALES SITI [P1-2 S5-6]\n"
         L"TS FARE SEK900.75,IND F,TAX SEK100XT,XF SEK3.25,TOTAL SEK1000.85,CALC STO SK CPH450SK "
         L"STO450.75SEK900.75END,BASIS YLOW,SALES SITI [P3-4 S5-6]\n");
  Change(scene.booking, L"TM FEE 250,", L"TM FEE 250.5,");
  Change(scene.booking, L"[P1 S2-3]", L"[P1 S5-6]");
  scene.agent = L"form frmSelectTST\npick lstTST 1,2\nclick cmdOK\nform frmPTA\nclick cmdOK\n";
  return scene;
}

practice::RehearsalOutcome WithSeparator(const char* decimal) {
  auto scene = DecimalScene();
  scene.decimal = decimal;
  return RehearseInAgreement(scene);
}

std::wstring EntriesOf(const practice::RehearsalOutcome& outcome) {
  std::wstring text;
  for (const std::wstring& entry : outcome.EntryTexts()) text += entry + L"\n";
  return text;
}

TEST(LocaleRun, DecimalsAreMultipliedAndSummedWithAPointForTheHost) {
  EXPECT_EQ(NewElements(WithSeparator(".")),
            (Lines{L"FO 117-4012345678 STO 80246878 [P1-4 S5-6]",
                   L"RM PWCT SK AT ARN A/P BEFORE DEPARTURE [P1-4 S5-6]",
                   L"OP 16MAR07 CHECK IF TICKET OK",
                   // 2000.5 and 1801.5 are 2000 and 1802; 241.5 and 200 are 242 and 200.
                   L"RM PTA TTL SEK3802/TAX SEK442XT, SEK80YQ + SEK250.5XP [P1-4 S5-6]",
                   L"RM *FARE:1081,TAX:130.5,PTA:62 [P1-4 S5-6]"}));
}

TEST(LocaleRun, QuirkOnlyTheBackOfficesRemarkHasTheUsersOwnDecimalSeparator) {
  const auto point = WithSeparator(".");
  for (const std::string decimal : {",", "'", "::"}) {
    const auto other = WithSeparator(decimal.c_str());
    const std::wstring tax = L"TAX:130" + std::wstring(decimal.begin(), decimal.end()) + L"5,";
    std::wstring entries = EntriesOf(point);
    std::wstring pnr = point.pnrAfter;
    Change(entries, L"TAX:130.5,", tax);
    Change(pnr, L"TAX:130.5,", tax);
    EXPECT_EQ(EntriesOf(other), entries) << decimal;
    EXPECT_EQ(other.pnrAfter, pnr) << decimal;
  }
}

TEST(LocaleRun, InTheDialogOnlyTheFeeHasTheUsersOwnDecimalSeparator) {
  for (const std::wstring decimal : {L",", L"."}) {
    auto scene = DecimalScene();
    scene.decimal = std::string(decimal.begin(), decimal.end());
    Change(scene.agent, L"form frmPTA\nclick cmdOK\n",
           L"form frmPTA\nsee txtMCOFee \"250" + decimal +
               L"5\"\nsee txtPTA \"SEK3802/TAX SEK442XT, SEK80YQ\"\nclick cmdCancel\n");
    RehearseInAgreement(scene);
  }
}

}  // namespace
}  // namespace run
