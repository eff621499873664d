#include "hostlib/com/LibraryCheck.h"

#include <algorithm>
#include <set>

#include "common/Numbers.h"
#include "hostlib/com/CallOutcome.h"

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
  return words + L", slot " + common::NumberText(operation.slot) + L" (" +
         std::wstring(operation.name) + L"): " + fault + L".";
}

class LibraryCheck {
 public:
  LibraryCheck(ComLibrary& library, std::span<const Operation> used)
      : library_(library), used_(used) {}

  std::vector<std::wstring> Faults() {
    std::vector<std::wstring> faults;
    if (!IsAnythingInstalled()) return faults;
    for (const Operation& operation : used_) {
      if (library_.IsInstalled(operation.object)) {
        const std::wstring fault = FaultOf(operation);
        if (!fault.empty()) faults.push_back(Words(operation, fault));
      } else if (notThere_.insert(operation.object).second) {
        faults.push_back(std::wstring(operation.object) + L": there is no such object.");
      }
    }
    return faults;
  }

 private:
  bool IsAnythingInstalled() {
    return std::any_of(used_.begin(), used_.end(), [this](const Operation& operation) {
      return library_.IsInstalled(operation.object);
    });
  }

  std::wstring FaultOf(const Operation& operation) {
    ClassBinding* binding = BindingOf(operation.object);
    return binding == nullptr ? std::wstring() : binding->WhatIsWrongWith(operation);
  }

  // Objects are made only of classes that no type library seen so far describes.
  ClassBinding* BindingOf(std::wstring_view className) {
    if (ClassBinding* binding = library_.BindingWithoutObject(className)) return binding;
    if (notMade_.contains(className)) return nullptr;
    ComPtr<IDispatch> object;
    if (FAILED(library_.MakeObject(className, object))) {
      notMade_.insert(className);
      return nullptr;
    }
    // A terminal that only serves objects may end with the last of them, and its types with it.
    held_.push_back(object);
    return &library_.BindingFor(className, *object.Get());
  }

  ComLibrary& library_;
  std::span<const Operation> used_;
  std::set<std::wstring_view> notThere_;
  std::set<std::wstring_view> notMade_;
  std::vector<ComPtr<IDispatch>> held_;
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

void CheckUsedOperations(ComLibrary& library, std::span<const Operation> used) {
  const std::vector<std::wstring> faults = LibraryCheck(library, used).Faults();
  if (faults.empty()) return;
  throw LibraryError(kLibraryDoesNotFit, L"hostlib", Message(faults),
                     LibraryError::Outcome::kNotSent);
}

}  // namespace hostlib::com
