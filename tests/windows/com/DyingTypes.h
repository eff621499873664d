#pragma once

#include <memory>

#include "hostlib/com/TypeOwners.h"

namespace com_tests {

/// Lets one of the questions that a program asks about a library's types fail as if the library's
/// terminal had gone away.
struct LinkBreak {
  int at = 0;  ///< the question that fails, from 1
  HRESULT with = S_OK;
  int asked = 0;

  bool IsNow() { return ++asked == at; }
};

/// The type, and every type and library that is reached through it, with the break.
hostlib::com::TypeInfo WithBreak(const hostlib::com::TypeInfo& type,
                                 std::shared_ptr<LinkBreak> link);

}  // namespace com_tests
