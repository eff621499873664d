#pragma once

#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "tst/TSTCollection.h"
#include "tst/TSTGeneral.h"
#include "tst/TSTTotals.h"

namespace tst {

/// The run's records that the reading of the TSTs fills.
struct TSTRecords {
  pnr::PNRInfo& pnr;
  pnr::MCOInfo& mco;
  TSTGeneral& general;
  TSTTotals& totals;
  TSTCollection& tsts;
};

}  // namespace tst
