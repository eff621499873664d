#pragma once

#include "pnr/GetPTAPNRinfo.h"
#include "tests/pnr/PNRBench.h"

namespace pnr {

/// The dialog's follow-up controls alone, everything on and ticked.
struct FollowUpForm : ui::Form {
  FollowUpForm() : Form(L"followUp") {
    chkOP.SetValue(true);
    chkOP.onClick = [this] { ++clicks; };
  }
  ui::CheckBox chkOP{*this, L"chkOP", L"PNR Follow Up"};
  ui::Label lblOPText{*this, L"lblOPText", L"&Text:"};
  ui::TextBox txtOPText{*this, L"txtOPText"};
  int clicks = 0;

  bool IsOff() const {
    return !chkOP.Value() && !chkOP.Enabled() && !lblOPText.Enabled() && !txtOPText.Enabled();
  }
  bool IsUntouched() const {
    return chkOP.Value() && chkOP.Enabled() && lblOPText.Enabled() && txtOPText.Enabled() &&
           clicks == 0;
  }
};

/// The reading of the PNR on the ordinary booking, which the tests then change.
struct ReadingBench : PNRBench {
  ReadingBench() {
    settings.strMandatoryElements = L"AP,TK";
    scripted.Answer(reader::kGetRecordLocator, L"ABC123");
    found[L"AP"] = {{L"", L"AP ARN 08 123456"}};
    found[L"TK"] = {{L"", L"TK TL15MAR"}};
    Has(reader::kCountTKElements, reader::kGetTKElement,
        {{{L"strKeyElementNr", L"5"}, {L"strKeyAction", L"TL"}, {L"strKeyElement", L"TL15MAR"}}});
    Has(reader::kCountSegments, reader::kGetSegment,
        {Segment(L"SK1234 Y 15MAR ARNCPH HK1", L"ARN", L"CPH"),
         Segment(L"SK1235 Y 22MAR CPHARN HK1", L"CPH", L"ARN")});
    scripted.Answer(reader::kCountFPElements, std::int16_t{1});
    scripted.On(reader::kGetHeader, [](const hostlib::Arguments& arguments) {
      practice::BagIn(arguments[0]).Set(L"strKeyOfficeID", L"ARNAG2100");
      return hostlib::Value();
    });
    scripted.Answer(reader::kCountOPElements, std::int16_t{0});
    general.strFirstTravelDate = L"15MAR07";
  }

  static Row Segment(std::wstring_view line, std::wstring_view from, std::wstring_view to) {
    return {{L"strKeySegment", line}, {L"strKeyDepCity", from}, {L"strKeyArrCity", to}};
  }
  void HasOptions(const std::vector<std::wstring>& texts) {
    std::vector<Row> rows;
    for (const std::wstring& text : texts) rows.push_back({{L"strKeyElement", text}});
    Has(reader::kCountOPElements, reader::kGetOPElement, rows);
  }

  fares::DateHelpers dates{global, scripted.platform, errors};
  settings::Settings settings;
  tst::TSTGeneral general;
  PNRInfo pnr;
  MCOInfo mco;
  FollowUpForm form;
  GetPTAPNRinfo room{library, global,
                     session, errors,
                     dates,   settings,
                     general, pnr,
                     mco,     FollowUpControls{form.chkOP, form.lblOPText, form.txtOPText}};
};

}  // namespace pnr
