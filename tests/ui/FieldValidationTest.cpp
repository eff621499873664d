#include <gtest/gtest.h>

#include "common/Text.h"
#include "tests/ui/DialogBench.h"

namespace ui {
namespace {

std::wstring InvalidBox(const std::wstring& text) {
  return L"box 64 \"Invalid Field !\" \"" + text + L"\" -> 1";
}

const std::wstring kOfficeBox = InvalidBox(L"Invalid Airline Office ID !");
const std::wstring kIATABox = InvalidBox(L"Invalid IATA Number, must be 8 digits !");
const std::wstring kCityBox = InvalidBox(L"Invalid City Code, must be three letters !");
const std::wstring kAirlineBox = InvalidBox(L"Invalid Airline Code, must be two letters !");

struct ValidationBench : DialogBench {
  ValidationBench() {
    ShowFilled();
    TakeLog();
  }
  bool Verify() { return validation.VerifyWindowFields(); }

  FieldValidation validation{
      {form.txtQueueingOfficeID, form.txtIATANumber, form.txtCityCode, form.txtCarrier},
      desktop,
      room.errors};
};

void ExpectRefused(ValidationBench& bench, TextBox& field, const std::wstring& box) {
  bench.form.cmdCancel.SetFocus();
  field.Select(0, 0);
  EXPECT_FALSE(bench.Verify()) << common::ToUtf8(field.Text());
  EXPECT_EQ(bench.TakeLog(), Lines{box});
  EXPECT_TRUE(field.HasFocus());
  EXPECT_EQ(field.SelectionStart(), 0);
  EXPECT_EQ(field.SelectionLength(), static_cast<int>(field.Text().size()));
}

void ExpectPasses(ValidationBench& bench) {
  EXPECT_TRUE(bench.Verify());
  EXPECT_EQ(bench.TakeLog(), Lines{});
}

TEST(FieldValidation, ValidFieldsPassWithoutAWord) {
  ValidationBench bench;
  ExpectPasses(bench);
}

TEST(FieldValidation, AnEmptyOfficeIDPasses) {
  ValidationBench bench;
  bench.form.txtQueueingOfficeID.SetText(L"");
  ExpectPasses(bench);
}

TEST(FieldValidation, OfficeIDsOfTheRightFormPass) {
  ValidationBench bench;
  for (const std::wstring office : {L"CPHSK0001", L"STOSK08AA", L"ABC??12??", L"ABC  00 X",
                                    L"XYZ**99--", L"ABC\u00E4\u00DF12\u00E9."}) {
    bench.form.txtQueueingOfficeID.SetText(office);
    ExpectPasses(bench);
  }
}

TEST(FieldValidation, OfficeIDsOfAnyOtherFormAreRefused) {
  ValidationBench bench;
  for (const std::wstring office : {
           L"CPHSK001",        // eight characters
           L"CPHSK00012",      // ten
           L"X",               // one
           L"CPH SK001",       // a letter where the first digit stands
           L"CPHSK0A01",       // and the second
           L"cPHSK0001",       // capitals only
           L"CpHSK0001",       //
           L"CPhSK0001",       //
           L"1PHSK0001",       //
           L"CP1SK0001",       //
           L"\u00C4PHSK0001",  // none beyond A to Z
           L" CPHSK000",       // eight characters when trimmed
           L"CPHSK000 ",       //
           L" PHSK0001",       //
           L"         ",       // nothing when trimmed
           L"CPHSK0001 ",      // the length counts the blank
           L" CPHSK0001",      //
           L"CPHSK\x0661\x0661"
           L"01",  // digits of another script
       }) {
    bench.form.txtQueueingOfficeID.SetText(office);
    ExpectRefused(bench, bench.form.txtQueueingOfficeID, kOfficeBox);
  }
}

TEST(FieldValidation, AnIATANumberIsEightCharactersLong) {
  ValidationBench bench;
  for (const std::wstring number : {L"", L"8024687", L"802468789"}) {
    bench.form.txtIATANumber.SetText(number);
    ExpectRefused(bench, bench.form.txtIATANumber, kIATABox);
  }
}

TEST(FieldValidation, OnlyTheLengthOfTheIATANumberIsTested) {
  ValidationBench bench;
  bench.form.txtIATANumber.SetText(L"8024 ABC");
  ExpectPasses(bench);
}

TEST(FieldValidation, ACityCodeIsThreeCharactersLong) {
  ValidationBench bench;
  for (const std::wstring city : {L"", L"ST", L"STOC"}) {
    bench.form.txtCityCode.SetText(city);
    ExpectRefused(bench, bench.form.txtCityCode, kCityBox);
  }
}

TEST(FieldValidation, AnAirlineCodeIsTwoCharactersLong) {
  ValidationBench bench;
  for (const std::wstring airline : {L"", L"S", L"SAS"}) {
    bench.form.txtCarrier.SetText(airline);
    ExpectRefused(bench, bench.form.txtCarrier, kAirlineBox);
  }
}

TEST(FieldValidation, ALockedAirlineFieldGetsTheFocusToo) {
  ValidationBench bench;
  bench.form.LockDocumentFields();
  bench.form.txtCarrier.SetText(L"SAS");
  ExpectRefused(bench, bench.form.txtCarrier, kAirlineBox);
}

TEST(FieldValidation, OnlyTheFirstInvalidFieldIsNamedInTheOrderOfficeIATACityAirline) {
  ValidationBench bench;
  frmPTA& form = bench.form;
  const std::vector<std::pair<TextBox*, std::wstring>> order = {
      {&form.txtQueueingOfficeID, kOfficeBox},
      {&form.txtIATANumber, kIATABox},
      {&form.txtCityCode, kCityBox},
      {&form.txtCarrier, kAirlineBox}};
  const std::vector<std::wstring> right = {L"STOSK08AA", L"80246878", L"STO", L"SK"};
  for (unsigned wrong = 0; wrong < 16; ++wrong) {
    Lines expected;
    for (std::size_t i = 0; i < order.size(); ++i) {
      const bool isWrong = (wrong >> i) % 2 != 0;
      order[i].first->SetText(isWrong ? std::wstring(L"X") : right[i]);
      if (isWrong && expected.empty()) expected.push_back(order[i].second);
    }
    EXPECT_EQ(bench.Verify(), wrong == 0) << wrong;
    EXPECT_EQ(bench.TakeLog(), expected) << wrong;
  }
}

TEST(FieldValidation, QueueDocumentNumberPrefixAndPWCTAreNotLookedAt) {
  ValidationBench bench;
  frmPTA& form = bench.form;
  for (TextBox* field :
       {&form.txtQueueCat, &form.txtMCONumber, &form.txtAirlinePrefix, &form.txtPWCT}) {
    field->SetText(L"");
    ExpectPasses(bench);
    field->SetText(L"?? NOT AT ALL ??");
    ExpectPasses(bench);
  }
}

TEST(FieldValidation, TheBoxIsUpBeforeTheFocusMoves) {
  ValidationBench bench;
  bench.form.txtCityCode.SetText(L"");
  bench.form.cmdCancel.SetFocus();
  bool stillThere = false;
  bench.desktop.inBox = [&] { stillThere = bench.form.cmdCancel.HasFocus(); };
  bench.Verify();
  EXPECT_TRUE(stillThere);
}

TEST(FieldValidation, AFailureWhileVerifyingIsReportedAndDoesNotPass) {
  ValidationBench bench;
  bench.form.txtCityCode.SetText(L"");
  bench.desktop.inBox = [] { throw common::RunTimeError(L"broken"); };
  EXPECT_FALSE(bench.Verify());
  EXPECT_EQ(bench.room.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221448, \"  PTA Script \", \"Error "
                  L"when verifying the Window Fields!\", 16)"});
}

}  // namespace
}  // namespace ui
