#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "hostlib/Interposer.h"

namespace com_run {

/// Counts the calls and the makings of objects together, as the fault matrix does, does something
/// before one of them, and sees the first of them that fails.
class Watch : public hostlib::CallHook {
 public:
  using Clock = std::chrono::steady_clock;
  /// The first failure: which call it was, from 1, when, and what it said.
  struct Failure {
    int place;
    Clock::time_point when;
    std::wstring words;
  };

  Watch() = default;
  Watch(int place, std::function<void()> before) : place_(place), before_(std::move(before)) {}

  /// Is told at once.
  std::function<void()> onFailure;

  int count() const { return count_; }
  int live() const { return live_; }
  const std::optional<Failure>& failure() const { return failure_; }

  template <typename Action>
  auto Carry(const Action& action) {
    const int place = ++count_;
    if (place == place_) before_();
    try {
      return action();
    } catch (const hostlib::LibraryError& error) {
      NoteFailure(place, error);
      throw;
    }
  }

  void ObjectCreated(std::wstring_view) override { ++live_; }
  void ObjectReleased(std::wstring_view) override { --live_; }
  hostlib::Value OnCall(const hostlib::CallInfo&,
                        const std::function<hostlib::Value()>& proceed) override {
    return Carry(proceed);
  }

 private:
  void NoteFailure(int place, const hostlib::LibraryError& error) {
    if (failure_) return;
    failure_ = {place, Clock::now(), error.description()};
    if (onFailure) onFailure();
  }

  int place_ = 0;
  std::function<void()> before_;
  int count_ = 0;
  int live_ = 0;
  std::optional<Failure> failure_;
};

/// A library that is watched. Both must outlive every object that was made.
class WatchedLibrary : public hostlib::Library {
 public:
  WatchedLibrary(hostlib::Library& inner, Watch& watch) : hooked_(inner, watch), watch_(watch) {}
  hostlib::ObjectPtr Create(std::wstring_view className) override {
    return watch_.Carry([&] { return hooked_.Create(className); });
  }

 private:
  hostlib::InterposedLibrary hooked_;
  Watch& watch_;
};

}  // namespace com_run
