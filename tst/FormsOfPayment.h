#pragma once

#include <string_view>

#include "pnr/MCOInfo.h"
#include "pnr/PNRInfo.h"
#include "tst/TSTGeneral.h"
#include "tst/TSTWarnings.h"

namespace tst {

/// Gathers the forms of payment of the TSTs into the MCO's: two different ones at most.
class FormsOfPayment {
 public:
  FormsOfPayment(pnr::PNRInfo& pnr, pnr::MCOInfo& mco, TSTGeneral& general, TSTWarnings& warnings);

  /// `fpElement` is the FP text of the TST read last, "" when it has none.
  void Add(std::wstring_view fpElement);

 private:
  void AddFurther(std::wstring_view formOfPayment);

  pnr::PNRInfo& pnr_;
  pnr::MCOInfo& mco_;
  TSTGeneral& general_;
  TSTWarnings& warnings_;
};

}  // namespace tst
