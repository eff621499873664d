#include "tests/faults/LargestBooking.h"

#include "tests/run/Scenes.h"

namespace faults {
namespace {

// Names of letters alone: A, B, ... Z, AA, AB, ...
std::wstring Letters(int number) {
  std::wstring text(1, static_cast<wchar_t>(L'A' + number % 26));
  return number < 26 ? text : Letters(number / 26 - 1) + text;
}

std::wstring TST(int number) {
  const std::wstring passenger = std::to_wstring((number - 1) % kNames + 1);
  return L"TS FARE SEK1000,IND F,TAX SEK120XT,TAX SEK40YQ,TOTAL SEK1160,CALC STO SK CPH500SK "
         L"STO500SEK1000END,BASIS YRT,SALES SITI,FOP CASH [P" +
         passenger + L" S100-101]\n";
}

}  // namespace

std::wstring LargestBooking(int elements) {
  std::wstring text;
  for (int i = 0; i < kNames; ++i) text += L"NM PAX" + Letters(i) + L"/JOHN MR\n";
  text +=
      L"SG SK1234 Y 15MAR07 ARN CPH HK99 0700 0810\n"
      L"SG SK1423 Y 22MAR07 CPH ARN HK99 1800 1910\n"
      L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678\n"
      L"TK TL 10MAR07\nAP STO 08-1234567\nFP CASH\nFM 10\nFV SK\n";
  for (int line = kNames + 9; line <= elements; ++line) text += L"RM KEEP THIS\n";
  for (int number = 1; number <= kTSTs; ++number) text += TST(number);
  text += L"TM FEE 250,AMOUNT SEK1160,FOP CASH [P1 S100-101]\nTR LOCATOR ABC123\n";
  return text;
}

practice::RehearsalScene LargestScene(int elements, const std::wstring& lines) {
  practice::RehearsalScene scene = run::OrdinaryScene();
  scene.booking = LargestBooking(elements);
  scene.agent = L"form frmSelectTST\npick lstTST " + lines +
                L"\nclick cmdOK\nform frmPTA\ntype txtPWCT \"SK AT ARN\"\nclick cmdOK\n";
  return scene;
}

std::wstring AllTSTs() {
  std::wstring lines = L"1";
  for (int number = 2; number <= kTSTs; ++number) lines += L"," + std::to_wstring(number);
  return lines;
}

}  // namespace faults
