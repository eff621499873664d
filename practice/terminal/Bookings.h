#pragma once

#include <string>
#include <vector>

namespace practice::terminal {

/// The practice bookings that lie beside the program, in its folder "pnrs", one a file.
class Bookings {
 public:
  /// Names from easy to hard, as the file menu.txt beside the bookings has them.
  std::vector<std::wstring> Names() const;
  /// The booking of that name, or in the file of that path. Throws common::RunTimeError when there
  /// is none.
  std::wstring Read(const std::wstring& nameOrPath) const;
};

}  // namespace practice::terminal
