#pragma once

#include <vector>

#include "common/RunTimeError.h"
#include "tst/TSTInfo.h"

namespace tst {

/// Every TST read in the run, in the order of reading, keyed by TST number.
class TSTCollection {
 public:
  /// A second record under the same number is a RunTimeError.
  void Add(TSTInfo record) {
    for (const TSTInfo& held : records_) {
      if (held.strTSTNum == record.strTSTNum) {
        throw common::RunTimeError(L"TST " + record.strTSTNum + L" has been read already");
      }
    }
    records_.push_back(std::move(record));
  }

  bool IsEmpty() const { return records_.empty(); }
  auto begin() { return records_.begin(); }
  auto end() { return records_.end(); }
  auto begin() const { return records_.begin(); }
  auto end() const { return records_.end(); }

 private:
  std::vector<TSTInfo> records_;
};

}  // namespace tst
