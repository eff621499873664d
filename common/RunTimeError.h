#pragma once

#include <exception>
#include <string>

namespace common {

/// A failure at run time, with a description for the agent or the help desk.
class RunTimeError : public std::exception {
 public:
  explicit RunTimeError(std::wstring description) : description_(std::move(description)) {}

  const std::wstring& description() const { return description_; }
  const char* what() const noexcept override { return "run-time error"; }

 private:
  std::wstring description_;
};

/// A number that does not fit the width it is stored in.
class OverflowError : public RunTimeError {
 public:
  OverflowError() : RunTimeError(L"Overflow") {}
};

/// A text or value that cannot be read as what is asked for.
class TypeMismatch : public RunTimeError {
 public:
  explicit TypeMismatch(const std::wstring& detail) : RunTimeError(L"Type mismatch: " + detail) {}
};

}  // namespace common
