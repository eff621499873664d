#pragma once

#include <cstdint>
#include <string>

#include "hostlib/ValueView.h"

namespace practice {

/// What a program that attaches shows of itself, as the library has asked its two objects. A
/// property that they do not answer is empty.
struct AttachedProgram {
  std::wstring caption;  ///< of the progress form
  std::wstring text;     ///< in the progress form
  std::wstring title;
  std::wstring folder;
  std::int32_t instance = 0;

  bool operator==(const AttachedProgram&) const = default;
};

AttachedProgram ReadAttachedProgram(const hostlib::ValueView& progressForm,
                                    const hostlib::ValueView& application);

}  // namespace practice
