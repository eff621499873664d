#pragma once

#include <cstddef>
#include <vector>

namespace bench {

/// Leaves a core's own memories as a run finds them in practice, where nothing of a run before is
/// left in them: without it a small booking would find everything as it was left, and a large one
/// would not.
class ColdStart {
 public:
  ColdStart();
  void Prepare();

 private:
  std::vector<std::byte> other_;
};

}  // namespace bench
