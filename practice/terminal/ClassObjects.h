#pragma once

#include <thread>
#include <vector>

#include "hostlib/Object.h"
#include "practice/terminal/Exporter.h"
#include "practice/terminal/MainThread.h"

namespace practice::terminal {

/// Offers every class of the library to all programs for its lifetime.
///
/// Objects live on the main thread, but the requests for new ones arrive on a thread outside its
/// apartment: only there can be told which process asks.
class ClassObjects {
 public:
  /// Throws common::RunTimeError when COM refuses.
  ClassObjects(hostlib::Library& library, Exporter& exporter);
  ~ClassObjects();
  ClassObjects(const ClassObjects&) = delete;
  ClassObjects& operator=(const ClassObjects&) = delete;

 private:
  void Offer();
  bool RegisterAll();
  void RevokeAll();

  hostlib::Library& library_;
  Exporter& exporter_;
  MainThread main_;
  std::vector<DWORD> cookies_;
  bool registered_ = false;
  HANDLE ready_;
  HANDLE end_;
  HANDLE ended_;
  std::thread thread_;
};

}  // namespace practice::terminal
