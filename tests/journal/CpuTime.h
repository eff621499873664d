#pragma once

#include <ctime>

namespace journal {

/// The processor's time since construction, which other work on the machine does not lengthen; on
/// Windows the time that has passed.
class CpuTime {
 public:
  double Seconds() const {
    return static_cast<double>(std::clock() - start_) / static_cast<double>(CLOCKS_PER_SEC);
  }

 private:
  std::clock_t start_ = std::clock();
};

}  // namespace journal
