#pragma once

#include "pnr/TSTReaders.h"
#include "tests/pnr/PNRBench.h"

namespace pnr {

struct TSTReadersBench : PNRBench {
  TSTReadersBench() {
    scripted.Answer(reader::kCountNameElements, std::int16_t{0});
    scripted.Answer(reader::kCountFSElements, std::int16_t{0});
  }

  struct Name {
    std::wstring element;
    std::wstring number;
  };
  void HasNames(const std::vector<Name>& names) {
    std::vector<Row> rows;
    for (const Name& name : names) {
      rows.push_back({{L"strKeyElement", name.element}, {L"strKeyElementNr", name.number}});
    }
    Has(reader::kCountNameElements, reader::kGetNameElement, rows);
  }

  struct FS {
    std::wstring netFare;
    std::wstring sellingFare;
    std::wstring tourCode;
    std::wstring passengers;
    std::wstring segments;
  };
  void HasFS(const std::vector<FS>& elements) {
    std::vector<Row> rows;
    for (const FS& fs : elements) {
      rows.push_back({{L"strKeyNetFare", fs.netFare},
                      {L"strKeySellFare", fs.sellingFare},
                      {L"strKeyElement", L"FS " + fs.netFare},
                      {L"strKeyTourCode", fs.tourCode},
                      {L"strKeyPasAsso", fs.passengers},
                      {L"strKeySegAsso", fs.segments}});
    }
    HasTyped(reader::kCountFSElements, L"FS", rows);
  }

  tst::TSTGeneral general;
  tst::TSTInfo tst;
  tst::TSTTotals totals;
  PNRInfo pnr;
  MCOInfo mco;
  TSTReaders room{library, global, errors, general, pnr, mco, totals};
};

}  // namespace pnr
