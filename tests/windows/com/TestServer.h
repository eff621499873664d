#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <vector>

#include "hostlib/com/Apartment.h"
#include "hostlib/com/ComLibrary.h"
#include "hostlib/com/LibraryCheck.h"
#include "hostlib/com/ProgIds.h"
#include "hostlib/com/TypeOwners.h"
#include "tests/windows/com/DyingTypes.h"

namespace com_tests {

using hostlib::com::Bstr;
using hostlib::com::TypeInfo;
using hostlib::com::TypeLibrary;
using hostlib::com::Variant;
using Microsoft::WRL::ComPtr;

/// The type libraries inside the test program, by their resource numbers.
enum class Types { kGood = 1, kLacksSlot = 2, kOtherCount = 3, kOtherWidth = 4 };
TypeLibrary LoadTypes(Types types);

/// One call as it arrives at the library.
struct Received {
  DISPID member;
  WORD kind;
  DISPPARAMS* parameters;
  VARIANT* result;
  EXCEPINFO* exception;
  UINT* badArgument;

  /// Counted from 0 in the written order.
  VARIANT& Argument(UINT index) const { return parameters->rgvarg[parameters->cArgs - 1 - index]; }
};

/// An object of the library: what a call does is written in the test.
class TestObject : public IDispatch {
 public:
  explicit TestObject(TypeInfo type) : type_(std::move(type)) {}
  virtual ~TestObject() = default;

  std::function<HRESULT(const Received&)> onCall;
  /// Answers to questions for other interfaces.
  std::map<std::wstring, ComPtr<TestObject>> others;
  std::vector<DISPID> calls;
  int questions = 0;      ///< for other interfaces
  int typeQuestions = 0;  ///< for its type information
  std::shared_ptr<LinkBreak> link = std::make_shared<LinkBreak>();

  void AddInterface(const IID& id, ComPtr<TestObject> object);
  /// Its questions and those for its types share the break.
  void BreakWith(const std::shared_ptr<LinkBreak>& theLink);
  /// The answer to every call.
  void Answer(std::function<void(VARIANT&)> fill);
  ULONG references() const { return references_; }

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** result) override;
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override;
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID, ITypeInfo** type) override;
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE Invoke(DISPID member, REFIID, LCID, WORD kind, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception,
                                   UINT* badArgument) override;

 private:
  TypeInfo type_;
  ULONG references_ = 0;
};

/// Classes and objects as a test says.
class TestSource : public hostlib::com::ObjectSource {
 public:
  void Install(std::wstring_view className, const CLSID& classId, ComPtr<IDispatch> object);

  std::map<std::wstring, HRESULT, std::less<>> failures;  ///< by ProgID, when made
  int stopping = 0;  ///< so many times the program that makes objects is about to end
  std::function<void()> onSearch;
  bool isOutOfReach = false;
  TypeLibrary registered;  ///< with every class
  int tried = 0;           ///< to make one
  int made = 0;
  int searched = 0;

  HRESULT FindClass(std::wstring_view progId, CLSID& classId) override;
  HRESULT Make(const CLSID& classId, ComPtr<IDispatch>& object) override;
  TypeLibrary TypesOf(const CLSID&) override { return registered; }
  bool IsOutOfReach(const CLSID&, HRESULT) override { return isOutOfReach; }

 private:
  struct Entry {
    std::wstring progId;
    CLSID classId;
    ComPtr<IDispatch> object;
  };
  std::vector<Entry> entries_;
};

/// A library over test objects, in an apartment of its own.
class ComBench : public testing::Test {
 protected:
  /// An object of the class of the test's type library, made under the name that the program uses.
  ComPtr<TestObject> Install(std::wstring_view className, const CLSID& classId, const IID& id);
  /// ... and at once the program's end of it.
  hostlib::ObjectPtr Made(std::wstring_view className) { return library_.Create(className); }

  hostlib::com::Apartment apartment_{[] { return false; }};
  TypeLibrary types_ = LoadTypes(Types::kGood);
  TestSource source_;
  hostlib::com::ComLibrary library_{source_};
};

/// A class that no type library describes.
inline constexpr CLSID kElsewhere{0x1, 0x2, 0x3, {4, 5, 6, 7, 8, 9, 10, 11}};

/// What comes before the faults of a library that does not fit.
inline const std::wstring kMisfit =
    L"The installed Vantel script library is not the one that this program needs.\r\r";

/// The words of an action that has to find that the library does not fit.
template <typename Action>
std::wstring MisfitOf(Action action) {
  try {
    action();
  } catch (const hostlib::com::LibraryDoesNotFit& misfit) {
    return misfit.words;
  }
  ADD_FAILURE() << "everything fits";
  return {};
}

/// The failure of an action that has to fail.
template <typename Action>
hostlib::LibraryError FailureOf(Action action) {
  try {
    action();
  } catch (const hostlib::LibraryError& error) {
    return error;
  }
  ADD_FAILURE() << "nothing failed";
  return hostlib::LibraryError(0, L"", L"");
}

}  // namespace com_tests
