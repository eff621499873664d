#include <gtest/gtest.h>

#include "tests/windows/driver/Driver.h"
#include "tests/windows/program/Stage.h"
#include "ui/win32/resource.h"

namespace driver {

namespace {

using Lines = std::vector<std::wstring>;

/// Two passengers, each with an MCO, a TSM and a TST; the second MCO gets its FA number with the
/// second time the PNR is read again.
const std::wstring kTwoOfEverything =
    L"NM SMITH/JOHN MR\n"
    L"NM SMITH/ANNA MRS\n"
    L"SG SK1234 Y 15MAR07 ARN CPH HK2 0700 0810\n"
    L"SG SK1423 Y 22MAR07 CPH ARN HK2 1800 1910\n"
    L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678\n"
    L"MCO SK,FM *C*10,FP CASH\n"
    L"TK TL 10MAR07\n"
    L"AP STO 08-1234567\n"
    L"FP CASH\n"
    L"FM 10\n"
    L"FV SK\n"
    L"TS FARE SEK1000,IND F,TAX SEK120XT,TAX SEK40YQ,TOTAL SEK1160,CALC STO SK CPH500SK "
    L"STO500SEK1000END,BASIS YRT,SALES SITI [P1 S3-4]\n"
    L"TS FARE SEK900,IND F,TAX SEK120XT,TAX SEK40YQ,TOTAL SEK1060,CALC STO SK CPH450SK "
    L"STO450SEK900END,BASIS YRT,SALES SITI [P2 S3-4]\n"
    L"TM FEE 250,AMOUNT SEK1160,FOP CASH [P1 S3-4]\n"
    L"TM FEE 250,AMOUNT SEK1060,FOP CASH [P2 S3-4]\n"
    L"TR LOCATOR ABC123\n"
    L"TR FA 2 117-4012345679 AFTER 2\n";

TEST(TheDialogs, WaitByThemselvesAndLetTheAgentChooseOnTheWay) {
  Stage stage;
  stage.SetBooking(kTwoOfEverything);
  stage.Work(
      L"form frmWaitForMCO\n"
      L"see staStatusText \"Waiting for MCO segments to be completed with FA elements - waited for "
      L"0 minute(s)...\"\n"
      L"form frmSelectMCO\n"
      L"see lblSelectMCO \"Select a MCO\"\n"
      L"pick lstMCO 2\n"
      L"click btnOK\n"
      L"form frmSelectTST\n"
      L"pick lstTST 1,2\n"
      L"click cmdOK\n"
      L"form frmPTA\n"
      L"see txtMCONumber \"4012345679\"\n"
      L"see txtPTA \"SEK1900/TAX SEK240XT, SEK80YQ\"\n"
      L"click cmdCancel\n");
  EXPECT_EQ(stage.program().ExitCode(), 0u);
  EXPECT_EQ(stage.Entries(),
            (Lines{L"RT", L"IR", L"RT", L"IR", L"RT", L"TQT", L"TQM RT", L"RT", L"TQM 2 RT",
                   L"OS SK PTA", L"TQT", L"TQT", L"TQT 1", L"TQT 2"}));
}

class WaitingEnds : public testing::TestWithParam<const wchar_t*> {};

TEST_P(WaitingEnds, AndTheRunWithIt) {
  Stage stage;
  stage.SetBooking(kTwoOfEverything);
  stage.Work(std::wstring(L"form frmWaitForMCO\n") + GetParam());
  EXPECT_EQ(stage.program().ExitCode(), 0u);
  EXPECT_EQ(stage.Entries(), (Lines{L"RT", L"IR", L"RT"}));
}

INSTANTIATE_TEST_SUITE_P(ByCancelOrTheCloseBox, WaitingEnds,
                         testing::Values(L"click cmdCancel\n", L"close\n"));

class CompleteBooking : public testing::Test {
 protected:
  CompleteBooking() {
    std::wstring booking = kTwoOfEverything;
    booking.resize(booking.find(L"TR FA"));
    booking.insert(booking.find(L"\nTK "), L",FA 117-4012345679");
    stage.SetBooking(booking);
  }
  Stage stage;
};

TEST_F(CompleteBooking, EnterTakesTheSelectedMCOAndSpaceTheTSTsUnderTheKeys) {
  Program& program = stage.Start();
  const HWND selectMCO = program.WaitForWindowWith(ID_lstMCO);
  EXPECT_EQ(ListLine(Item(selectMCO, ID_lstMCO), 1),
            L"2        2        CASH                      3-4");
  Press(Item(selectMCO, ID_lstMCO), VK_DOWN);
  Press(Item(selectMCO, ID_lstMCO), VK_RETURN);
  const HWND selectTST = program.WaitForWindowWith(ID_lstTST);
  const HWND list = Item(selectTST, ID_lstTST);
  Press(list, VK_RETURN);  // nothing is selected: it stays
  Press(list, VK_SPACE);
  Press(list, VK_DOWN);
  Press(list, VK_SPACE);
  Press(list, VK_RETURN);
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  WaitUntil(L"both TSTs are added up",
            [&] { return TextOf(Item(dialog, ID_txtPTA)) == L"SEK1900/TAX SEK240XT, SEK80YQ"; });
  EXPECT_EQ(TextOf(Item(dialog, ID_txtMCONumber)), L"4012345679");
  Press(Item(dialog, ID_txtPTA), VK_ESCAPE);
  EXPECT_EQ(stage.program().ExitCode(), 0u);
}

TEST_F(CompleteBooking, TSTsArePickedWithTheMouseToo) {
  Program& program = stage.Start();
  Press(Item(program.WaitForWindowWith(ID_lstMCO), ID_lstMCO), VK_RETURN);
  const HWND selectTST = program.WaitForWindowWith(ID_lstTST);
  const HWND list = Item(selectTST, ID_lstTST);
  WaitForFocus(list);
  RECT second = {};
  SendMessageW(list, LB_GETITEMRECT, 1, reinterpret_cast<LPARAM>(&second));
  ClickAt(list, second.left + 5, (second.top + second.bottom) / 2);
  WaitUntil(L"the second is selected", [&] { return SendMessageW(list, LB_GETSEL, 1, 0) > 0; });
  Click(Item(selectTST, ID_cmdOK));
  const HWND dialog = program.WaitForWindowWith(ID_txtPWCT);
  WaitUntil(L"only the second is taken",
            [&] { return TextOf(Item(dialog, ID_txtPTA)) == L"SEK900/TAX SEK120XT, SEK40YQ"; });
}

TEST_F(CompleteBooking, EscInTheTSTListEndsTheRun) {
  Program& program = stage.Start();
  Press(Item(program.WaitForWindowWith(ID_lstMCO), ID_lstMCO), VK_RETURN);
  Press(Item(program.WaitForWindowWith(ID_lstTST), ID_lstTST), VK_ESCAPE);
  EXPECT_EQ(stage.program().ExitCode(), 0u);
}

}  // namespace

}  // namespace driver
