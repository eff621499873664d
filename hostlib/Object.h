#pragma once

#include <string>
#include <string_view>

#include "common/RunTimeError.h"
#include "hostlib/ValueView.h"

namespace hostlib {

/// A failure that the script library raised, or the link to it.
class LibraryError : public common::RunTimeError {
 public:
  /// What is known of the entry that the failed call carried.
  enum class Outcome {
    kRefused,      ///< the library answered with a failure
    kNotSent,      ///< the library was gone before the call
    kInterrupted,  ///< the library went away inside the call: the entry may have reached the host
  };

  LibraryError(std::int32_t number, std::wstring source, std::wstring text,
               Outcome outcome = Outcome::kRefused)
      : RunTimeError(std::move(text)),
        number_(number),
        source_(std::move(source)),
        outcome_(outcome) {}

  std::int32_t number() const { return number_; }
  const std::wstring& source() const { return source_; }
  Outcome outcome() const { return outcome_; }

  /// Which object and operation failed; set once, by the innermost layer that knows.
  void Locate(std::wstring_view object, std::wstring_view operation);
  const std::wstring& object() const { return object_; }
  const std::wstring& operation() const { return operation_; }

 private:
  std::int32_t number_;
  std::wstring source_;
  Outcome outcome_;
  std::wstring object_;
  std::wstring operation_;
};

/// The number of the error for a terminal that runs with rights that this program does not have;
/// the system says the same where it starts programs. The error's text is written for the agent.
inline constexpr auto kTerminalIsElevated = static_cast<std::int32_t>(0x800702E4);

/// The default member of a list object: called as a slot, it gives the list's array.
inline constexpr int kDefaultMember = 0;

/// One interface of one library object. Slots count the interface's entries from 0; the first
/// seven are the standard object entries, so the first operation has slot 7.
class Object {
 public:
  virtual ~Object() = default;

  /// The class the object was made as, or that an operation promises as its result.
  virtual std::wstring_view ClassName() const = 0;

  /// Calls the operation in `slot`. Throws LibraryError.
  virtual Value Call(int slot, const Arguments& arguments) = 0;

  /// Another interface of the same object, counted from 1. Throws LibraryError when there is none.
  virtual ObjectPtr Interface(int number) = 0;
};

/// Makes objects by their class name, e.g. L"QueueRequest". Throws LibraryError, and, which no step
/// of a run may handle, what says that there is no library to work with.
class Library {
 public:
  virtual ~Library() = default;
  virtual ObjectPtr Create(std::wstring_view className) = 0;
};

/// The array of texts in a value: the value itself, or what a list object gives through its
/// default member. An empty value is an array without rows.
TextArray TextsOf(Value value);
IntegerArray IntegersOf(Value value);
DoubleArray DoublesOf(Value value);

}  // namespace hostlib
