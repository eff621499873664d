#include "hostlib/com/LibraryCheck.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

#include "common/Numbers.h"
#include "hostlib/com/CallOutcome.h"
#include "hostlib/com/Failures.h"

namespace hostlib::com {
namespace {

using Microsoft::WRL::ComPtr;

constexpr const wchar_t* kIntroduction =
    L"The installed Vantel script library is not the one that this program needs.";
constexpr std::size_t kNamedAtMost = 10;

std::wstring Words(const Operation& operation, const std::wstring& fault) {
  std::wstring words(operation.object);
  if (operation.interfaceNumber != 1) {
    words += L", interface " + common::NumberText(operation.interfaceNumber);
  }
  words += L", slot " + common::NumberText(operation.slot) + L" (" + std::wstring(operation.name) +
           L"): " + fault;
  // The system's own words have theirs.
  return words.ends_with(L'.') ? words : words + L".";
}

class LibraryCheck {
 public:
  LibraryCheck(ComLibrary& library, std::span<const Operation> used)
      : library_(library), used_(used), isThere_(library.HasBound()) {}

  std::vector<std::wstring> Faults() {
    std::vector<std::wstring> wrong;
    for (const Operation& operation : used_) wrong.push_back(WhatIsWrongWith(operation));
    // Without a single object there is no library or no terminal, which is for the run to find.
    if (!isThere_ && !HasMade()) return {};
    std::vector<std::wstring> faults;
    for (std::size_t i = 0; i < used_.size(); ++i) {
      const std::wstring fault = FaultOf(used_[i], wrong[i]);
      if (!fault.empty()) faults.push_back(fault);
    }
    return faults;
  }

  bool HasMade() const { return !held_.empty(); }
  std::vector<ObjectPtr> Made() const {
    std::vector<ObjectPtr> made;
    for (const auto& [className, object] : held_) {
      made.push_back(library_.Inward(object, className));
    }
    return made;
  }

 private:
  std::wstring FaultOf(const Operation& operation, const std::wstring& wrong) {
    if (const std::wstring ofClass = FaultOfClass(operation.object); !ofClass.empty()) {
      return told_.insert(operation.object).second ? ofClass : std::wstring();
    }
    return wrong.empty() ? wrong : Words(operation, wrong);
  }

  std::wstring WhatIsWrongWith(const Operation& operation) {
    try {
      ClassBinding* binding = BindingOf(operation.object);
      return binding == nullptr ? std::wstring() : binding->WhatIsWrongWith(operation);
    } catch (const LibraryError& error) {
      if (!IsOfTheLink(error)) return L"its description can not be read. " + TextOf(error.number());
      library_.Forget(operation.object);
      throw;
    }
  }

  // What holds for every operation of the class.
  std::wstring FaultOfClass(std::wstring_view className) {
    if (!library_.IsInstalled(className)) {
      return std::wstring(className) + L": there is no such object.";
    }
    const auto failure = notMade_.find(className);
    // Only a terminal with an open session can make one, which is for the run to find.
    if (failure == notMade_.end() || className == operations::terminal_session::kClass) return {};
    // A failure of the link is none of the library's.
    CheckLink(failure->second);
    return std::wstring(className) + L": no object can be made. " + TextOf(failure->second);
  }

  // Null when no type library seen so far describes the class, and no object of it can be made. Of
  // the others none is made: a library may give some of its objects only to a program at work.
  ClassBinding* BindingOf(std::wstring_view className) {
    if (const auto made = held_.find(className); made != held_.end()) {
      return &library_.BindingFor(className, *made->second.Get());
    }
    if (notMade_.contains(className)) return nullptr;
    if (ClassBinding* binding = library_.BindingWithoutObject(className)) return binding;
    ComPtr<IDispatch> object;
    const HRESULT made = library_.MakeObject(className, object);
    if (FAILED(made)) {
      notMade_.emplace(className, made);
      return nullptr;
    }
    // A terminal that only serves objects may end with the last of them, and its types with it.
    return &library_.BindingFor(className, *held_.emplace(className, object).first->second.Get());
  }

  ComLibrary& library_;
  std::span<const Operation> used_;
  const bool isThere_;
  std::map<std::wstring_view, ComPtr<IDispatch>> held_;
  std::map<std::wstring_view, HRESULT> notMade_;
  std::set<std::wstring_view> told_;
};

std::wstring Message(const std::vector<std::wstring>& faults) {
  std::wstring message = std::wstring(kIntroduction) + L"\r";
  for (std::size_t i = 0; i < faults.size() && i < kNamedAtMost; ++i) message += L"\r" + faults[i];
  if (faults.size() > kNamedAtMost) {
    message += L"\r... and " +
               common::NumberText(static_cast<std::int32_t>(faults.size() - kNamedAtMost)) +
               L" more.";
  }
  return message;
}

}  // namespace

std::vector<ObjectPtr> CheckUsedOperations(ComLibrary& library, std::span<const Operation> used) {
  LibraryCheck check(library, used);
  const std::vector<std::wstring> faults = check.Faults();
  if (faults.empty()) return check.Made();
  throw LibraryError(kLibraryDoesNotFit, L"hostlib", Message(faults),
                     LibraryError::Outcome::kNotSent);
}

ObjectPtr CheckedLibrary::Create(std::wstring_view className) {
  if (isChecked_) return library_.Create(className);
  try {
    for (const ObjectPtr& made : CheckBefore(className)) {
      if (made->ClassName() == className) return made;
    }
  } catch (LibraryError& error) {
    if (error.number() == kLibraryDoesNotFit) throw LibraryDoesNotFit{error.description()};
    error.Locate(className, L"Create");
    throw;
  }
  return library_.Create(className);
}

std::vector<ObjectPtr> CheckedLibrary::CheckBefore(std::wstring_view className) {
  if (!std::exchange(hasBegun_, true)) {
    std::vector<Operation> ofFirst;
    std::ranges::copy_if(used_, std::back_inserter(ofFirst),
                         [&](const Operation& operation) { return operation.object == className; });
    LibraryCheck check(library_, ofFirst);
    if (check.Faults().empty() && check.HasMade()) return check.Made();
  }
  std::vector<ObjectPtr> made = CheckUsedOperations(library_, used_);
  isChecked_ = true;
  return made;
}

}  // namespace hostlib::com
