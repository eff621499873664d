#pragma once

#include "pnr/PNRChecks.h"
#include "tests/pnr/PNRBench.h"

namespace pnr {

struct ChecksBench : PNRBench {
  ChecksBench() {
    scripted.Answer(reader::kCountRMElements, std::int16_t{0});
    scripted.Answer(reader::kCountOSIElements, std::int16_t{0});
    scripted.Answer(hostlib::operations::terminal_session::kSendCommand, L"/");
    scripted.Answer(hostlib::operations::terminal_session::kSendEntryChecked, true);
  }

  struct RM {
    std::wstring text;
    std::wstring segments;
    std::wstring number;
  };
  void HasRemarks(const std::vector<RM>& remarks) {
    std::vector<Row> rows;
    for (const RM& rm : remarks) {
      rows.push_back({{L"strKeyText", rm.text},
                      {L"strKeySegAsso", rm.segments},
                      {L"strKeyElementNr", rm.number}});
    }
    Has(reader::kCountRMElements, reader::kGetRMElement, rows);
  }

  struct OSI {
    std::wstring number;
    std::wstring text;
    std::wstring airline;
  };
  void HasOSI(const std::vector<OSI>& elements) {
    std::vector<Row> rows;
    for (const OSI& osi : elements) {
      rows.push_back({{L"strKeyElementNr", osi.number},
                      {L"strKeyElement", osi.text},
                      {L"strKeyAirline", osi.airline}});
    }
    HasTyped(reader::kCountOSIElements, L"OSI", rows);
  }

  MCOInfo mco;
  PNRInfo pnr;
  PNRChecks room{library, global, session, errors, desktop, mco, pnr};
};

}  // namespace pnr
