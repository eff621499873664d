#pragma once

#include "mco/TSMList.h"
#include "mco/frmSelectMCO.h"
#include "tests/mco/Lines.h"
#include "tests/support/RoomBench.h"

namespace mco {

/// A TSM list on a scripted library: `displays` are given one a TQM, and the entries that are
/// built are numbered E1, E2, ...
struct TSMBench : support::RoomBench {
  struct Row {
    std::int16_t m;
    std::int16_t p;
    std::wstring l;
    std::wstring fop;
  };

  TSMBench() {
    using namespace hostlib::operations;
    scripted.On(tsm_display_reader::kBuildTQMEntry, [this](const hostlib::Arguments&) {
      return hostlib::Value(L"E" + std::to_wstring(++entries_));
    });
    scripted.Answer(terminal_session::kSendCommand, L"TQM ANSWER");
    scripted.Answer(terminal_session::kLoadPNR, {});
    scripted.On(tsm_display_reader::kParseTQMResponse, [this](const hostlib::Arguments&) {
      if (displays.empty()) throw hostlib::LibraryError(-1, L"test", L"no display is left");
      const hostlib::Value next = displays.front();
      displays.pop_front();
      return next;
    });
  }

  using Content = std::initializer_list<std::pair<std::wstring_view, hostlib::Value>>;
  hostlib::Value Display(Content content) { return hostlib::ObjectPtr(scripted.Bag(content)); }
  hostlib::Value OneTSM(const hostlib::Value& fee) {
    return Display({{L"blnKeyDisplayOK", true},
                    {L"blnKeyTSMFound", true},
                    {L"blnMCOFeeFound", true},
                    {L"dblMCOFee", fee}});
  }
  hostlib::Value TSMWithoutFee() {
    return Display({{L"blnKeyDisplayOK", true},
                    {L"blnKeyTSMFound", true},
                    {L"strKeyErrorResponse", L"NO FEE"}});
  }
  hostlib::Value Refused() {
    return Display({{L"blnKeyDisplayOK", false}, {L"strKeyErrorResponse", L"NEED TSM - CHECK"}});
  }
  hostlib::Value List(const std::vector<Row>& rows) {
    hostlib::IntegerArray m, p;
    hostlib::TextArray r, l, name, currency, fop;
    hostlib::DoubleArray amount;
    for (const Row& row : rows) {
      m.items.push_back(row.m);
      p.items.push_back(row.p);
      r.items.push_back(L"R" + std::to_wstring(row.m));
      l.items.push_back(row.l);
      name.items.push_back(L"NAME" + std::to_wstring(row.p));
      currency.items.push_back(L"C" + std::to_wstring(row.m));
      amount.items.push_back(row.m + 0.5);
      fop.items.push_back(row.fop);
    }
    return Display({{L"blnKeyDisplayOK", true},
                    {L"blnKeyTSMFound", false},
                    {L"blnMCOFeeFound", false},
                    {L"intNoTSM", static_cast<std::int16_t>(rows.size())},
                    {L"intTSMListMArray", scripted.List(m)},
                    {L"intTSMListPArray", scripted.List(p)},
                    {L"strTSMListRArray", scripted.List(r)},
                    {L"strTSMListLArray", scripted.List(l)},
                    {L"strTSMListNameArray", scripted.List(name)},
                    {L"strTSMListCurrencyArray", scripted.List(currency)},
                    {L"dblTSMListAmountArray", scripted.List(amount)},
                    {L"strTSMListFOPArray", scripted.List(fop)}});
  }
  hostlib::Value ListOfThree() {
    return List({{4, 1, L"1-2", L"CASH"}, {7, 2, L"3", L"CCVI"}, {9, 3, L"4", L"CHECK"}});
  }

  /// The agent selects the line, counted from 0, and presses OK.
  void AgentChooses(std::size_t line) {
    desktop.inModal = [line](ui::Form& shown) {
      auto& dialog = static_cast<frmSelectMCO&>(shown);
      std::vector<bool> selected(dialog.lstMCO.Items().size());
      selected.at(line) = true;
      dialog.lstMCO.SelectionChanged(selected);
      dialog.btnOK.Clicked();
    };
  }

  /// The reporter's boxes so far.
  Lines Reports() {
    Lines reports;
    for (const std::wstring& line : recorder.lines()) {
      const bool shows = line.starts_with(L"ScriptErrorReporter") &&
                         line.find(L"LastErrorNumber") == std::wstring::npos;
      if (shows) reports.push_back(line);
    }
    return reports;
  }

  std::deque<hostlib::Value> displays;
  TSMInfo tsm;
  pnr::MCOInfo info;
  TSMList list{library, global, session, errors, desktop, tsm, info};

 private:
  int entries_ = 0;
};

/// Number 110, the style of an error.
inline std::wstring Box110(const std::wstring& text) {
  return L"ScriptErrorReporter.1.18 ShowError(-2147221394, \"  PTA Script \", \"" + text +
         L"\", 16)";
}

}  // namespace mco
