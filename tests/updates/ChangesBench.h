#pragma once

#include "tests/updates/UpdatesBench.h"
#include "updates/ElementChanges.h"

namespace updates {

/// The changes on a bench where nothing needs changing yet.
struct ChangesBench : UpdatesBench {
  ChangesBench() {
    // A command that tells what it was built from.
    scripted.On(hostlib::operations::pnr_element_change::kExecute,
                [](const hostlib::Arguments& arguments) {
                  const practice::ParameterBagObject& bag = practice::BagIn(arguments[0]);
                  return hostlib::Value(bag.Get(L"strKeyElementNr").Text() + L"/" +
                                        bag.Get(L"strKeyNewValue").Text());
                });
    AnswerFlag(hostlib::operations::pnr_element_change::kReadResponse, L"blnKeyPNRFound", true);
    pnr.strTicketingAction = L"OK";
    mco.strAirlineCode = L"SK";
    mco.strCommission = L"10";
  }

  /// A TST that needs no change.
  tst::TSTInfo Tst(std::wstring number) const {
    tst::TSTInfo tst;
    tst.strTSTNum = std::move(number);
    tst.strFVElementNumber = L"20";
    tst.strFVElementValue = L"SK";
    tst.strFMElementNumber = L"21";
    tst.strFMElementValue = L"10";
    tst.strFPElementNumber = L"22";
    tst.strFPElementValue = L"O/PT/CASH";
    return tst;
  }
  /// TSTs 1, 2, ... that differ in one field, and need a change in its element.
  void AddTsts(std::wstring tst::TSTInfo::*number, std::wstring tst::TSTInfo::*value,
               const std::wstring& unlike, std::initializer_list<const wchar_t*> numbers) {
    int count = 0;
    for (const wchar_t* elementNumber : numbers) {
      tst::TSTInfo tst = Tst(std::to_wstring(++count));
      tst.*number = elementNumber;
      tst.*value = unlike;
      tsts.Add(tst);
    }
  }

  /// What was sent by slot 11, one command each.
  Lines Sent() {
    Lines commands;
    const std::wstring before = L"TerminalSession.1.11 SendEntry(\"";
    for (const std::wstring& line : CallsOf(before)) {
      commands.push_back(line.substr(before.size(), line.find(L"\")") - before.size()));
    }
    return commands;
  }

  ui::Form dialog{L"frmPTA"};
  ReleaseWatchingRunEnd end{recorder};
  ElementChanges changes{library, global, session, errors, end, dialog, settings, tsts, pnr, mco};
};

}  // namespace updates
