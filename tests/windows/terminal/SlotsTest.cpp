#include <gtest/gtest.h>

#include <map>

#include "hostlib/Operations.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/terminal/Client.h"

namespace {

using client::ComPtr;

struct Member {
  std::wstring name;
  int arguments = 0;
  bool hidden = false;
  MEMBERID id = 0;
};
using Members = std::map<int, Member>;  // by slot

std::wstring NameOf(ITypeInfo& info, MEMBERID id) {
  hostlib::com::Bstr name;
  info.GetDocumentation(id, name.Out(), nullptr, nullptr, nullptr);
  return std::wstring(name.view());
}

ComPtr<ITypeInfo> Referred(ITypeInfo& info, UINT index) {
  HREFTYPE reference = 0;
  ComPtr<ITypeInfo> referred;
  if (SUCCEEDED(info.GetRefTypeOfImplType(index, &reference))) {
    info.GetRefTypeInfo(reference, &referred);
  }
  return referred;
}

/// The half of a dual interface in which offsets and parameters are those of its functions.
ComPtr<ITypeInfo> FunctionHalf(ComPtr<ITypeInfo> info) {
  TYPEATTR* attributes = nullptr;
  info->GetTypeAttr(&attributes);
  const bool otherHalf = attributes->typekind == TKIND_DISPATCH;
  info->ReleaseTypeAttr(attributes);
  return otherHalf ? Referred(*info.Get(), static_cast<UINT>(-1)) : info;
}

Members MembersOf(ITypeInfo& info) {
  TYPEATTR* attributes = nullptr;
  info.GetTypeAttr(&attributes);
  Members members;
  for (UINT i = 0; i < attributes->cFuncs; ++i) {
    FUNCDESC* function = nullptr;
    info.GetFuncDesc(i, &function);
    Member member{NameOf(info, function->memid), 0, (function->wFuncFlags & FUNCFLAG_FHIDDEN) != 0,
                  function->memid};
    for (SHORT p = 0; p < function->cParams; ++p) {
      if ((function->lprgelemdescParam[p].paramdesc.wParamFlags & PARAMFLAG_FRETVAL) == 0) {
        ++member.arguments;
      }
    }
    members[function->oVft / static_cast<int>(sizeof(void*))] = member;
    info.ReleaseFuncDesc(function);
  }
  info.ReleaseTypeAttr(attributes);
  return members;
}

using Classes = std::map<std::wstring, std::vector<Members>, std::less<>>;

/// Every class of a type library with its interfaces in order.
Classes ClassesOf(ITypeLib& library) {
  Classes classes;
  const UINT count = library.GetTypeInfoCount();
  for (UINT i = 0; i < count; ++i) {
    TYPEKIND kind = TKIND_ENUM;
    library.GetTypeInfoType(i, &kind);
    if (kind != TKIND_COCLASS) continue;
    ComPtr<ITypeInfo> info;
    library.GetTypeInfo(i, &info);
    std::vector<Members>& interfaces = classes[NameOf(*info.Get(), MEMBERID_NIL)];
    while (const auto one = Referred(*info.Get(), static_cast<UINT>(interfaces.size()))) {
      interfaces.push_back(MembersOf(*FunctionHalf(one).Get()));
    }
  }
  return classes;
}

/// The type library as a script reaches it, from an object.
class TypeLibrarySlots : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    const auto bag = client::Make(L"ParameterBag");
    ComPtr<ITypeLib> library;
    ComPtr<ITypeInfo> info;
    UINT index = 0;
    ASSERT_EQ(bag->GetTypeInfo(0, LOCALE_NEUTRAL, &info), S_OK);
    ASSERT_EQ(info->GetContainingTypeLib(&library, &index), S_OK);
    classes_ = ClassesOf(*library.Get());
  }

  static Classes classes_;
};

Classes TypeLibrarySlots::classes_;

TEST_F(TypeLibrarySlots, EveryOperationStandsInItsSlotWithItsArguments) {
  for (const hostlib::Operation& operation : hostlib::AllOperations()) {
    SCOPED_TRACE(
        driver::ToUtf8(std::wstring(operation.object) + L"." + std::wstring(operation.name)));
    const std::vector<Members>& interfaces = classes_[std::wstring(operation.object)];
    const auto number = static_cast<std::size_t>(operation.interfaceNumber);
    ASSERT_GE(interfaces.size(), number);
    const Members& members = interfaces[number - 1];
    const auto found = members.find(operation.slot);
    ASSERT_NE(found, members.end());
    EXPECT_EQ(found->second.name, operation.name);
    EXPECT_EQ(found->second.arguments, operation.arguments);
    EXPECT_FALSE(found->second.hidden);
  }
}

TEST_F(TypeLibrarySlots, WhatIsNoOperationIsAHiddenPlaceholder) {
  const std::vector<Members>& interfaces = classes_[L"PnrReader"];
  ASSERT_EQ(interfaces.size(), 3U);
  int slot = 7;
  for (const auto& [at, member] : interfaces[0]) {
    EXPECT_EQ(at, slot++);
    EXPECT_EQ(member.hidden, hostlib::FindOperation(L"PnrReader", 1, at) == nullptr);
  }
  EXPECT_EQ(slot, 114);
}

TEST_F(TypeLibrarySlots, AMemberIdIsNotItsSlot) {
  for (const auto& [slot, member] : classes_[L"TerminalSession"].at(0)) {
    EXPECT_NE(member.id, slot);
  }
}

TEST_F(TypeLibrarySlots, AListGivesItsArrayThroughTheDefaultMember) {
  const Members members = classes_[L"List"].at(0);
  ASSERT_EQ(members.size(), 1U);
  EXPECT_EQ(members.begin()->second.id, DISPID_VALUE);
}

}  // namespace
