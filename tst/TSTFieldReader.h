#pragma once

#include <string>
#include <string_view>

#include "common/Literal.h"
#include "hostlib/ScriptGlobal.h"
#include "pnr/MCOInfo.h"
#include "tst/TSTGeneral.h"
#include "tst/TSTInfo.h"

namespace tst {

/// Takes one TST's values out of its display, group by group. Made for one display; the groups are
/// read in the order of the operations below.
class TSTFieldReader {
 public:
  TSTFieldReader(hostlib::Library& library, hostlib::ScriptGlobal& global,
                 std::wstring_view responseText);

  void ReadNames(TSTInfo& tst);
  /// What the selection has in common is taken from the first TST that supplies it.
  void ReadGeneral(TSTInfo& tst, TSTGeneral& general, pnr::MCOInfo& mco);
  void ReadFare(TSTInfo& tst);
  bool IsReissue();
  std::wstring SalesIndicator();
  void ReadTaxes(TSTInfo& tst);
  void ReadFareElements(TSTInfo& tst);

 private:
  std::wstring Text(common::Literal key) { return global_.TextIn(bag_, key); }
  void TakeFirst(std::wstring& field, common::Literal key);

  hostlib::Library& library_;
  hostlib::ScriptGlobal& global_;
  std::wstring_view responseText_;
  hostlib::ParameterBag bag_;
};

}  // namespace tst
