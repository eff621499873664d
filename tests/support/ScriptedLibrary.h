#pragma once

#include <deque>
#include <map>
#include <tuple>

#include "hostlib/Object.h"
#include "practice/library/ParameterBagObject.h"
#include "practice/library/ScriptGlobalObject.h"
#include "tests/support/FixedPlatform.h"

namespace support {

/// A library whose answers a test writes down: ParameterBag and ScriptGlobal are the practice
/// library's; every other operation answers what the test said with On or Answer, and fails loudly
/// when it said nothing. Put a hostlib::Recorder before it (InterposedLibrary) to see the calls.
class ScriptedLibrary : public hostlib::Library {
 public:
  using Body = std::function<hostlib::Value(const hostlib::Arguments&)>;

  /// The operation does this, every time.
  void On(const hostlib::Operation& operation, Body body) {
    bodies_[Key(operation)] = std::move(body);
  }
  /// The operation gives this, every time.
  void Answer(const hostlib::Operation& operation, hostlib::Value answer) {
    On(operation, [answer = std::move(answer)](const hostlib::Arguments&) { return answer; });
  }
  /// The operation gives these, one a call; a call too many fails.
  void Answers(const hostlib::Operation& operation, std::deque<hostlib::Value> answers) {
    On(operation,
       [answers = std::make_shared<std::deque<hostlib::Value>>(std::move(answers))](
           const hostlib::Arguments&) -> hostlib::Value {
         if (answers->empty()) {
           throw hostlib::LibraryError(-1, L"test", L"no answer is left for this call");
         }
         const hostlib::Value next = answers->front();
         answers->pop_front();
         return next;
       });
  }
  /// The operation raises a failure of the library.
  void Fail(const hostlib::Operation& operation, std::int32_t number, std::wstring text) {
    On(operation, [this, number, text](const hostlib::Arguments&) -> hostlib::Value {
      lastError.number = number;
      lastError.text = text;
      throw hostlib::LibraryError(number, L"test", text);
    });
  }
  /// Making an object of this class fails.
  void FailToCreate(std::wstring_view className) { notMade_ = className; }

  /// A bag to give as an answer.
  std::shared_ptr<practice::ParameterBagObject> Bag(
      std::initializer_list<std::pair<std::wstring_view, hostlib::Value>> content = {}) {
    auto bag = std::make_shared<practice::ParameterBagObject>(nullptr);
    for (const auto& [key, value] : content) bag->Set(key, value);
    return bag;
  }
  hostlib::Value List(hostlib::Value array) {
    return hostlib::ObjectPtr(std::make_shared<practice::ListObject>(std::move(array), nullptr));
  }

  hostlib::ObjectPtr Create(std::wstring_view className) override {
    if (className == notMade_) {
      throw hostlib::LibraryError(429, L"test", L"cannot make " + std::wstring(className));
    }
    if (className == hostlib::operations::kBag) {
      return std::make_shared<practice::ParameterBagObject>(nullptr);
    }
    if (className == hostlib::operations::script_global::kClass &&
        !IsScripted(hostlib::operations::script_global::kClass)) {
      return std::make_shared<practice::ScriptGlobalObject>(
          platform, [](const practice::AttachedProgram&) { return false; }, nullptr);
    }
    return std::make_shared<ScriptedObject>(std::wstring(className), 1, *this);
  }

  FixedPlatform platform;
  /// Give it to a scripted reporter's LastErrorNumber and LastErrorText (see ScriptReporter).
  practice::LastError lastError;

 private:
  using Place = std::tuple<std::wstring, int, int>;

  class ScriptedObject : public hostlib::Object {
   public:
    ScriptedObject(std::wstring className, int interfaceNumber, ScriptedLibrary& library)
        : className_(std::move(className)), interfaceNumber_(interfaceNumber), library_(library) {}
    std::wstring_view ClassName() const override { return className_; }
    hostlib::Value Call(int slot, const hostlib::Arguments& arguments) override {
      const auto found = library_.bodies_.find({className_, interfaceNumber_, slot});
      if (found == library_.bodies_.end()) {
        throw hostlib::LibraryError(-1, L"test",
                                    className_ + L"." + std::to_wstring(interfaceNumber_) + L"." +
                                        std::to_wstring(slot) + L" is not scripted");
      }
      return found->second(arguments);
    }
    hostlib::ObjectPtr Interface(int number) override {
      return std::make_shared<ScriptedObject>(className_, number, library_);
    }

   private:
    std::wstring className_;
    int interfaceNumber_;
    ScriptedLibrary& library_;
  };

  static Place Key(const hostlib::Operation& operation) {
    return {std::wstring(operation.object), operation.interfaceNumber, operation.slot};
  }
  bool IsScripted(std::wstring_view className) const {
    for (const auto& [place, body] : bodies_) {
      if (std::get<0>(place) == className) return true;
    }
    return false;
  }

  std::map<Place, Body> bodies_;
  std::wstring notMade_;
};

}  // namespace support
