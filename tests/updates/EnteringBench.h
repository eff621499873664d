#pragma once

#include "tests/updates/CreationBench.h"
#include "updates/ElementCreation.h"

namespace updates {

/// The whole of entering, for a PNR that holds elements of every kind and a run without TSTs.
struct EnteringBench : CreationBench {
  EnteringBench() {
    pnr.blnFPExists = pnr.blnFVExists = pnr.blnFMExists = true;
    pnr.strRMPTATotal = L"SEK1000";
    mco.strTotalFare = L"SEK1000";
  }

  void AddTst(std::wstring number, std::wstring fare, bool infant = false,
              std::wstring association = L"7") {
    tst::TSTInfo tst;
    tst.strTSTNum = std::move(number);
    tst.strFare = std::move(fare);
    tst.blnInf = infant;
    tst.strPasAsso = std::move(association);
    tst.intNoNames = 1;
    tsts.Add(tst);
  }

  /// What was sent, cut at ";".
  Lines Entered(bool newPWCT = false, std::wstring_view officeID = L"STOSK08AA") {
    creation.EnterPNRElements(newPWCT, officeID);
    Lines elements;
    const std::wstring before = L"TerminalSession.1.10 SendCommand(\"";
    for (const std::wstring& line : CallsOf(before)) {
      std::wstring rest =
          line.substr(before.size(), line.find(L"\") -> \"LONG ANSWER\"") - before.size());
      for (std::size_t end = rest.find(L';'); end != rest.npos; end = rest.find(L';')) {
        elements.push_back(rest.substr(0, end));
        rest.erase(0, end + 1);
      }
      EXPECT_EQ(rest, L"") << "an entry ends in a semicolon";
    }
    return elements;
  }

  BackOfficeRemark backOffice{global, errors, settings, tsts, mco};
  ElementCreation creation{library,    global,   session, errors, runEnd, dates,
                           backOffice, settings, general, tsts,   pnr,    mco};
};

}  // namespace updates
