#pragma once

#include <optional>

#include "practice/library/ParameterBagObject.h"
#include "practice/library/PnrDisplayText.h"
#include "practice/library/PracticeLibrary.h"

namespace practice {

// Failures of the library's own, besides the standard ones.
inline constexpr auto kNoSession = static_cast<std::int32_t>(0x80040902);
inline constexpr auto kSessionLost = static_cast<std::int32_t>(0x80040903);
inline constexpr auto kEntryTooLong = static_cast<std::int32_t>(0x80040904);
inline constexpr auto kNoPnr = static_cast<std::int32_t>(0x80040905);
inline constexpr auto kNoElement = static_cast<std::int32_t>(0x80040906);
inline constexpr auto kNoDisplay = static_cast<std::int32_t>(0x80040907);
inline constexpr auto kNotWritten = static_cast<std::int32_t>(0x80040908);
inline constexpr auto kNoRoom = static_cast<std::int32_t>(0x80040909);
inline constexpr auto kNoClass = static_cast<std::int32_t>(0x80040154);

[[noreturn]] inline void RaiseFailure(std::int32_t number, std::wstring text) {
  throw hostlib::LibraryError(number, L"Practice library", std::move(text));
}

/// What the objects of one library share: what they work with, the last failure, the PNR that was
/// loaded last. Makes and counts them; kept until the last of them is released.
class Workshop : public std::enable_shared_from_this<Workshop> {
 public:
  Workshop(PracticeLibrary::Collaborators collaborators, PracticeLibrary::Options asked)
      : with(collaborators), options(asked) {}

  PracticeLibrary::Collaborators with;
  PracticeLibrary::Options options;
  LastError lastError;
  std::optional<PnrDisplayText> loaded;
  AttachedProgram attached;
  int live = 0;

  template <typename T, typename... Arguments>
  std::shared_ptr<T> Make(Arguments&&... arguments) {
    auto object = std::make_unique<T>(std::forward<Arguments>(arguments)...);
    ++live;
    return std::shared_ptr<T>(object.release(), [keep = shared_from_this()](T* released) {
      delete released;
      --keep->live;
    });
  }
  std::shared_ptr<ParameterBagObject> MakeBag() { return Make<ParameterBagObject>(&lastError); }
  hostlib::Value MakeList(hostlib::Value array) {
    return hostlib::ObjectPtr(Make<ListObject>(std::move(array), &lastError));
  }
};

}  // namespace practice
