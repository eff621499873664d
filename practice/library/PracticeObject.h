#pragma once

#include <functional>
#include <map>

#include "hostlib/Object.h"
#include "hostlib/Operations.h"

namespace practice {

/// The library's memory of its own last failure, which the error reporter shows. Number 0: the
/// last call went well.
struct LastError {
  std::int32_t number = 0;
  std::wstring text;
};

/// What every object of the practice library is: operations by interface and slot. It is strict:
/// an unknown slot or a wrong number of arguments is a failure.
class PracticeObject : public hostlib::Object, public std::enable_shared_from_this<PracticeObject> {
 public:
  /// Without a `lastError` the object leaves no trace of its failures (the reporter's own way).
  PracticeObject(std::wstring_view className, LastError* lastError);

  std::wstring_view ClassName() const override { return className_; }
  hostlib::Value Call(int slot, const hostlib::Arguments& arguments) override;
  hostlib::ObjectPtr Interface(int number) override;

  hostlib::Value CallOn(int interfaceNumber, int slot, const hostlib::Arguments& arguments);

 protected:
  using Body = std::function<hostlib::Value(const hostlib::Arguments&)>;
  void On(const hostlib::Operation& operation, Body body);
  /// An operation in a slot that the program does not name.
  void OnSlot(int slot, Body body);

  /// Raises a failure of the library with a number of its own (see docs).
  [[noreturn]] static void Fail(std::int32_t number, std::wstring text);

 private:
  struct Entry {
    int arguments;  ///< -1: any
    Body body;
  };
  hostlib::Value Dispatch(int interfaceNumber, int slot, const hostlib::Arguments& arguments);

  std::wstring className_;
  LastError* lastError_;
  std::map<std::pair<int, int>, Entry> operations_;
};

}  // namespace practice
