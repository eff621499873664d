#pragma once

#include "practice/library/ParameterBagObject.h"
#include "tests/tst/TSTBench.h"
#include "tst/TSTDetailReader.h"

namespace tst {

/// The detail reading alone.
struct DetailBench : TSTBench {
  /// The record that the reading fills from this display.
  TSTInfo Read(const ShownTST& display) {
    shown[L"R"] = display;
    if (!taxes.IsEmpty()) PutTaxes();
    TSTInfo tst;
    EXPECT_TRUE(details.ReadTSTDetail(L"R", tst));
    return tst;
  }
  /// Reads the display, totals it and files it.
  void ReadAndFile(const ShownTST& display) {
    shown[L"R"] = display;
    details.ReadCurrentTST(L"R");
  }

  /// What the display gives as its taxes, in place of an array.
  hostlib::Value taxes;
  TSTDetailReader details{library, global, errors,  stop,
                          desktop, runEnd, records, {readers, amounts, sums}};

 private:
  void PutTaxes() {
    scripted.On(hostlib::operations::tst_detail_request::kReadFare,
                [this](const hostlib::Arguments& a) {
                  practice::BagIn(a[0]).Set(L"strKeyTaxArray()", taxes);
                  return hostlib::Value();
                });
  }
};

}  // namespace tst
