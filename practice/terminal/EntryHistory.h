#pragma once

#include <string>
#include <vector>

namespace practice::terminal {

/// The entries typed so far, for the arrow keys.
class EntryHistory {
 public:
  /// Goes to the end; the same entry twice in a row is kept once.
  void Add(std::wstring entry);
  /// The one before; the oldest stays. "" when there is none.
  std::wstring Earlier();
  /// The one after; "" past the last.
  std::wstring Later();

 private:
  std::vector<std::wstring> entries_;
  std::size_t at_ = 0;  ///< entries_.size(): behind the last
};

}  // namespace practice::terminal
