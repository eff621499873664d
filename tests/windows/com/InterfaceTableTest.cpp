#include <TestLibrary.h>

#include "hostlib/com/InterfaceTable.h"
#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

using hostlib::com::InterfaceTable;

/// A type as a program of the other width hands it over: every place in its tables is counted in
/// pointers of that program. What the link does not ask is not answered.
class TypeOfOtherWidth final : public ITypeInfo {
 public:
  explicit TypeOfOtherWidth(TypeInfo type) : type_(std::move(type)) {}
  virtual ~TypeOfOtherWidth() = default;

  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void**) override { return E_NOINTERFACE; }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
  }

  HRESULT STDMETHODCALLTYPE GetTypeAttr(TYPEATTR** attributes) override {
    const HRESULT result = type_->GetTypeAttr(attributes);
    (*attributes)->cbSizeVft = static_cast<WORD>(InOtherWidth((*attributes)->cbSizeVft));
    return result;
  }
  void STDMETHODCALLTYPE ReleaseTypeAttr(TYPEATTR* attributes) override {
    type_->ReleaseTypeAttr(attributes);
  }
  HRESULT STDMETHODCALLTYPE GetFuncDesc(UINT index, FUNCDESC** function) override {
    const HRESULT result = type_->GetFuncDesc(index, function);
    if (SUCCEEDED(result)) {
      (*function)->oVft = static_cast<SHORT>(InOtherWidth((*function)->oVft));
    }
    return result;
  }
  void STDMETHODCALLTYPE ReleaseFuncDesc(FUNCDESC* function) override {
    type_->ReleaseFuncDesc(function);
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeOfImplType(UINT index, HREFTYPE* reference) override {
    return type_->GetRefTypeOfImplType(index, reference);
  }
  HRESULT STDMETHODCALLTYPE GetRefTypeInfo(HREFTYPE reference, ITypeInfo** type) override {
    TypeInfo referenced;
    const HRESULT result = type_->GetRefTypeInfo(reference, &referenced);
    if (FAILED(result)) return result;
    *type = TypeInfo(new TypeOfOtherWidth(referenced)).Detach();
    return result;
  }

  HRESULT STDMETHODCALLTYPE GetTypeComp(ITypeComp**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetVarDesc(UINT, VARDESC**) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetNames(MEMBERID, BSTR*, UINT, UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetImplTypeFlags(UINT, INT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetIDsOfNames(LPOLESTR*, UINT, MEMBERID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE Invoke(PVOID, MEMBERID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                   UINT*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDocumentation(MEMBERID, BSTR*, BSTR*, DWORD*, BSTR*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE GetDllEntry(MEMBERID, INVOKEKIND, BSTR*, BSTR*, WORD*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE AddressOfMember(MEMBERID, INVOKEKIND, PVOID*) override {
    return E_NOTIMPL;
  }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID, PVOID*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetMops(MEMBERID, BSTR*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetContainingTypeLib(ITypeLib**, UINT*) override { return E_NOTIMPL; }
  void STDMETHODCALLTYPE ReleaseVarDesc(VARDESC*) override {}

 private:
  static int InOtherWidth(int offset) {
    constexpr int kOwn = static_cast<int>(sizeof(void*));
    return offset / kOwn * (12 - kOwn);
  }

  TypeInfo type_;
  ULONG references_ = 0;
};

InterfaceTable TableOfOtherWidth(const IID& id) {
  TypeInfo type;
  EXPECT_EQ(LoadTypes(Types::kGood)->GetTypeInfoOfGuid(id, &type), S_OK);
  return InterfaceTable(TypeInfo(new TypeOfOtherWidth(type)));
}

TEST(InterfaceTable, ASlotIsCountedInPointersOfTheProgramThatTheLibraryRunsIn) {
  const InterfaceTable table = TableOfOtherWidth(__uuidof(ISession));
  EXPECT_EQ(table.MemberInSlot(9).value().id, 203);
  EXPECT_EQ(table.MemberInSlot(16).value().id, 210);
}

TEST(InterfaceTable, InheritedSlotsAreCountedTheSame) {
  const InterfaceTable table = TableOfOtherWidth(__uuidof(IList));
  EXPECT_EQ(table.MemberInSlot(8).value().id, 602);
  EXPECT_EQ(table.MemberInSlot(10).value().id, 604);
}

TEST(InterfaceTable, WhatStandsPastTheTableOfTheOtherWidthIsNoSlot) {
  const InterfaceTable table = TableOfOtherWidth(__uuidof(ISession));
  EXPECT_FALSE(table.MemberInSlot(17).has_value());
  EXPECT_FALSE(table.MemberInSlot(32).has_value());
}

}  // namespace
}  // namespace com_tests
