#pragma once

#include "mco/WaitForMCO.h"
#include "practice/library/ParameterBagObject.h"
#include "tests/mco/Lines.h"
#include "tests/support/RoomBench.h"

namespace mco {

inline const std::wstring kComplete =
    L"Select the MCO segment to use. Note that it is only possible to select MCO segments with an "
    L"FA number.";
inline std::wstring WaitedFor(int minutes) {
  return L"Waiting for MCO segments to be completed with FA elements - waited for " +
         std::to_wstring(minutes) + L" minute(s)...";
}

/// A PNR whose MCO segments the test changes as it goes, read through the real readers.
struct WaitBench : support::RoomBench, ui::WindowlessView {
  struct Segment {
    std::wstring number;
    std::wstring fa;
    std::wstring element;
  };

  WaitBench() {
    using namespace hostlib::operations;
    scripted.Answer(terminal_session::kSendEntryChecked, true);
    scripted.Answer(terminal_session::kLoadPNR, {});
    scripted.On(pnr_reader::kCountMCOElements, [this](const hostlib::Arguments&) {
      return static_cast<std::int16_t>(segments.size());
    });
    scripted.On(pnr_reader::kFindElements, [this](const hostlib::Arguments& arguments) {
      auto& bag = practice::BagIn(arguments[0]);
      const Segment& segment =
          segments.at(static_cast<std::size_t>(bag.Get(L"intKeyIndex").Integer()));
      bag.Set(L"strKeyElementNr", segment.number);
      bag.Set(L"strKeyMCOFATicketNbr", segment.fa);
      bag.Set(L"strKeyElement", segment.element);
      return hostlib::Value(arguments[0]);
    });
  }

  /// Loads the form and puts it where its status texts are seen.
  void LoadAndShow() {
    if (form.Load()) form.Shown(*this);
  }
  void Tick(int times = 1) {
    for (int i = 0; i < times; ++i) form.tmrWait.Ticked();
  }

  void ControlSet(ui::Control& control, ui::Property property) override {
    if (&control == &form.staStatusText) statusTexts.emplace_back(control.Text());
    if (property == ui::Property::kInterval) intervals.push_back(form.tmrWait.Interval());
  }

  frmWaitForMCO::Reach Reach() {
    return {library, global, errors, stop, desktop, runEnd, pnrReading, checks};
  }

  /// One with its FA number, one without.
  static std::vector<Segment> Incomplete() {
    return {{L"8", L"117-4012345678", L"MCO ONE"}, {L"9", L"", L"MCO TWO"}};
  }
  static std::vector<Segment> Complete() {
    return {{L"8", L"117-4012345678", L"MCO ONE"}, {L"9", L"117-4012345679", L"MCO TWO"}};
  }

  std::vector<Segment> segments = Incomplete();
  Lines statusTexts;
  std::vector<int> intervals;

  settings::Settings settings;
  tst::TSTGeneral general;
  pnr::PNRInfo pnrInfo;
  pnr::MCOInfo info;
  ui::Form options{L"options"};
  ui::CheckBox chkOP{options, L"chkOP", L""};
  ui::Label lblOPText{options, L"lblOPText"};
  ui::TextBox txtOPText{options, L"txtOPText"};
  fares::DateHelpers dates{global, scripted.platform, errors};
  pnr::GetPTAPNRinfo pnrReading{
      library,  global,  session, errors, dates,
      settings, general, pnrInfo, info,   pnr::FollowUpControls{chkOP, lblOPText, txtOPText}};
  pnr::PNRChecks checks{library, global, session, errors, desktop, info, pnrInfo};

  bool waitCancelled = false;
  frmWaitForMCO form{Reach(), waitCancelled};
  WaitForMCO wait{Reach()};
};

}  // namespace mco
