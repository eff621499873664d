#pragma once

#include <vector>

#include "hostlib/Object.h"
#include "practice/terminal/Exporter.h"

namespace practice::terminal {

/// Offers every class of the library to all programs for its lifetime.
class ClassObjects {
 public:
  /// Throws common::RunTimeError when COM refuses.
  ClassObjects(hostlib::Library& library, Exporter& exporter);
  ~ClassObjects();
  ClassObjects(const ClassObjects&) = delete;
  ClassObjects& operator=(const ClassObjects&) = delete;

 private:
  void RevokeAll();

  std::vector<DWORD> cookies_;
};

}  // namespace practice::terminal
