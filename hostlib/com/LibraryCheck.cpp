#include "hostlib/com/LibraryCheck.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

#include "common/Numbers.h"
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
      : library_(library), used_(used) {}

  /// Uses it for the types of its class.
  void Hold(std::wstring_view className, ComPtr<IDispatch> object) {
    held_.emplace(className, std::move(object));
  }

  std::vector<std::wstring> Faults() {
    std::vector<std::wstring> wrong;
    for (const Operation& operation : used_) wrong.push_back(WhatIsWrongWith(operation));
    // Without a single object there is no library or no terminal, which is for the run to find.
    if (held_.empty() && !library_.HasBound()) return {};
    std::vector<std::wstring> faults;
    for (std::size_t i = 0; i < used_.size(); ++i) {
      const std::wstring fault = FaultOf(used_[i], wrong[i]);
      if (!fault.empty()) faults.push_back(fault);
    }
    return faults;
  }

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
  throw LibraryDoesNotFit{Message(faults)};
}

ObjectPtr CheckedLibrary::Create(std::wstring_view className) {
  if (isChecked_) return library_.Create(className);
  try {
    const bool canBeFirst = !library_.HasBound() && library_.IsInstalled(className);
    return canBeFirst ? First(className) : AfterTheWholeCheck(className);
  } catch (LibraryError& error) {
    error.Locate(className, L"Create");
    throw;
  }
}

ObjectPtr CheckedLibrary::First(std::wstring_view className) {
  ObjectPtr object = library_.Create(className);
  std::vector<Operation> ofFirst;
  std::ranges::copy_if(used_, std::back_inserter(ofFirst),
                       [&](const Operation& operation) { return operation.object == className; });
  LibraryCheck check(library_, ofFirst);
  check.Hold(className, library_.Outward(object));
  // All that does not fit is told at once.
  if (!check.Faults().empty()) CheckUsedOperations(library_, used_);
  return object;
}

ObjectPtr CheckedLibrary::AfterTheWholeCheck(std::wstring_view className) {
  const std::vector<ObjectPtr> made = CheckUsedOperations(library_, used_);
  // Nothing was looked at where no object could be made.
  isChecked_ = library_.HasBound();
  for (const ObjectPtr& object : made) {
    if (object->ClassName() == className) return object;
  }
  return library_.Create(className);
}

}  // namespace hostlib::com
