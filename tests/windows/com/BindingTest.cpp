#include <TestLibrary.h>

#include "hostlib/TerminalSession.h"
#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

namespace operations = hostlib::operations;
using hostlib::Value;

class Binding : public ComBench {
 protected:
  ComPtr<TestObject> InstallSession() {
    return Install(operations::terminal_session::kClass, __uuidof(::TestSession),
                   __uuidof(ISession));
  }
  ComPtr<TestObject> InstallChange() {
    auto change =
        Install(operations::pnr_element_change::kClass, __uuidof(::TestChange), __uuidof(IChange));
    answer_ = new TestObject(nullptr);
    change->AddInterface(__uuidof(IChangeAnswer), answer_);
    return change;
  }

  ComPtr<TestObject> answer_;
};

TEST_F(Binding, CallsTheMemberThatStandsInTheSlot) {
  const auto server = InstallSession();
  const auto session = Made(L"TerminalSession");
  session->Call(9, {});
  session->Call(10, {Value(L"x")});
  session->Call(11, {Value(L"x")});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{203, 204, 205}));
}

TEST_F(Binding, ALibraryOfTheOtherWidthHasItsSlotsInTheSamePlaces) {
  types_ = LoadTypes(Types::kOtherWidth);
  const auto server = InstallSession();
  const auto session = Made(L"TerminalSession");
  session->Call(9, {});
  session->Call(10, {Value(L"x")});
  session->Call(16, {});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{203, 204, 210}));
}

TEST_F(Binding, InheritedOperationsOfTheOtherWidthKeepTheirSlots) {
  types_ = LoadTypes(Types::kOtherWidth);
  const auto server = Install(L"TstListRequest", __uuidof(::TestList), __uuidof(IList));
  const auto list = Made(L"TstListRequest");
  list->Call(8, {});
  list->Call(10, {Value(L"response")});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{602, 604}));
}

TEST_F(Binding, DoesNotCountTheLanguageAndTheResultAsArguments) {
  const auto server = InstallSession();
  Made(L"TerminalSession")->Call(15, {Value(L"x")});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{209}));
}

TEST_F(Binding, ReadsAPropertyAsAProperty) {
  const auto server = InstallSession();
  WORD kind = 0;
  server->onCall = [&kind](const Received& call) {
    kind = call.kind;
    return S_OK;
  };
  Made(L"TerminalSession")->Call(16, {});
  EXPECT_EQ(kind, DISPATCH_PROPERTYGET);
}

TEST_F(Binding, WritesAPropertyWithItsValueNamed) {
  const auto server = Install(L"ProfileStore", __uuidof(::TestStore), __uuidof(IStore));
  server->onCall = [](const Received& call) {
    EXPECT_EQ(call.kind, DISPATCH_PROPERTYPUT);
    EXPECT_EQ(call.parameters->cArgs, 4U);
    EXPECT_EQ(call.parameters->cNamedArgs, 1U);
    EXPECT_EQ(call.parameters->rgdispidNamedArgs[0], DISPID_PROPERTYPUT);
    EXPECT_STREQ(call.Argument(3).bstrVal, L"value");
    EXPECT_EQ(call.result, nullptr);
    return S_OK;
  };
  Made(L"ProfileStore")->Call(8, {Value(L"f"), Value(L"s"), Value(L"k"), Value(L"value")});
  EXPECT_EQ(server->calls.size(), 1U);
}

TEST_F(Binding, ADefaultInterfaceThatIsNotTheFirstIsCalledAsItIsAndTheFirstIsAskedFor) {
  const auto server = Install(operations::pnr_element_change::kClass, __uuidof(::TestTurned),
                              __uuidof(IChangeAnswer));
  const ComPtr<TestObject> first(new TestObject(nullptr));
  server->AddInterface(__uuidof(IChange), first);
  const auto change = Made(L"PnrElementChange");
  change->Call(7, {Value()});
  EXPECT_EQ(first->calls, (std::vector<DISPID>{401}));
  EXPECT_EQ(server->calls, (std::vector<DISPID>{}));
  change->Interface(2)->Call(8, {Value(L"response")});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{502}));
}

TEST_F(Binding, FindsTheSecondInterfacePastWhatTheClassCallsBack) {
  const auto server = InstallChange();
  Made(L"PnrElementChange")->Interface(2)->Call(8, {Value(L"response")});
  EXPECT_EQ(answer_->calls, (std::vector<DISPID>{502}));
  EXPECT_TRUE(server->calls.empty());
}

TEST_F(Binding, AClassHasNoMoreInterfacesThanItLists) {
  const auto server = InstallChange();
  const auto change = Made(L"PnrElementChange");
  EXPECT_EQ(FailureOf([&] { change->Interface(3); }).number(), E_NOINTERFACE);
  EXPECT_EQ(FailureOf([&] { change->Interface(0); }).number(), E_NOINTERFACE);
}

TEST_F(Binding, FindsInheritedAndOwnOperations) {
  const auto server = Install(L"TstListRequest", __uuidof(::TestList), __uuidof(IList));
  const auto list = Made(L"TstListRequest");
  list->Call(8, {});
  list->Call(10, {Value(L"response")});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{602, 604}));
}

TEST_F(Binding, UsesTheHalfWithTheTableWhenItIsGivenTheOther) {
  TypeInfo byName;
  ASSERT_EQ(types_->GetTypeInfoOfGuid(__uuidof(ISession), &byName), S_OK);
  // The case that this is about: what the object gives is not the half with the table.
  ASSERT_EQ(hostlib::com::TypeAttributes(byName)->typekind, TKIND_DISPATCH);
  HREFTYPE reference = 0;
  TypeInfo table;
  ASSERT_EQ(byName->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
  ASSERT_EQ(byName->GetRefTypeInfo(reference, &table), S_OK);
  for (const TypeInfo& half : {byName, table}) {
    const auto member = hostlib::com::InterfaceTable(half).MemberInSlot(11);
    ASSERT_TRUE(member.has_value());
    EXPECT_EQ(member->id, 205);
    EXPECT_EQ(member->references.size(), 1U);
  }
}

TEST_F(Binding, AskedForOnceAClassIsBoundForEveryObject) {
  const auto server = InstallSession();
  Made(L"TerminalSession")->Call(11, {Value(L"x")});
  const int typeQuestions = server->typeQuestions;
  Made(L"TerminalSession")->Call(11, {Value(L"x")});
  EXPECT_EQ(server->typeQuestions, typeQuestions);
  EXPECT_EQ(source_.searched, 1);
}

TEST_F(Binding, AMissIsKeptToo) {
  const auto server = InstallSession();
  const auto session = Made(L"TerminalSession");
  FailureOf([&] { session->Call(33, {Value(L"IR")}); });
  const int typeQuestions = server->typeQuestions;
  FailureOf([&] { session->Call(33, {Value(L"IR")}); });
  EXPECT_EQ(server->typeQuestions, typeQuestions);
}

TEST_F(Binding, ABoundCallAsksTheObjectNothingElse) {
  const auto server = InstallChange();
  const auto change = Made(L"PnrElementChange");
  change->Interface(2)->Call(8, {Value(L"response")});
  const int questions = server->questions;
  const int typeQuestions = server->typeQuestions;
  change->Interface(2)->Call(8, {Value(L"response")});
  EXPECT_EQ(answer_->calls.size(), 2U);
  EXPECT_EQ(server->questions, questions);
  EXPECT_EQ(server->typeQuestions + answer_->typeQuestions, typeQuestions);
}

TEST_F(Binding, AMissingSlotIsNeverCalled) {
  const auto server = InstallSession();
  const auto session = Made(L"TerminalSession");
  const auto error = FailureOf([&] { session->Call(33, {Value(L"IR")}); });
  EXPECT_EQ(error.number(), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(error.outcome(), hostlib::LibraryError::Outcome::kNotSent);
  EXPECT_EQ(error.object(), L"TerminalSession");
  EXPECT_EQ(error.operation(), L"SendEntryChecked");
  EXPECT_TRUE(server->calls.empty());
}

TEST_F(Binding, AnotherNumberOfArgumentsIsNeverSent) {
  types_ = LoadTypes(Types::kOtherCount);
  const auto server = InstallSession();
  const auto session = Made(L"TerminalSession");
  const auto error = FailureOf([&] { session->Call(11, {Value(L"RT")}); });
  EXPECT_EQ(error.number(), DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(error.outcome(), hostlib::LibraryError::Outcome::kNotSent);
  EXPECT_EQ(error.operation(), L"SendEntry");
  EXPECT_TRUE(server->calls.empty());
}

TEST_F(Binding, AnInterfaceWithoutATableHasNoSlots) {
  const auto server = Install(L"RemarkDivider", __uuidof(::TestDivider), __uuidof(DividerByName));
  const auto divider = Made(L"RemarkDivider");
  EXPECT_EQ(FailureOf([&] { divider->Call(7, {Value(L"text")}); }).number(), DISP_E_MEMBERNOTFOUND);
}

TEST_F(Binding, AnObjectThatDoesNotDescribeItselfHasNoSlots) {
  ComPtr<TestObject> server(new TestObject(nullptr));
  source_.Install(L"PrintRequest", __uuidof(::TestStore), server);
  const auto print = Made(L"PrintRequest");
  EXPECT_EQ(FailureOf([&] { print->Call(7, {Value(L"x")}); }).number(), DISP_E_MEMBERNOTFOUND);
  EXPECT_EQ(FailureOf([&] { print->Interface(2); }).number(), E_NOINTERFACE);
}

TEST_F(Binding, RegisteredTypesAreReadWithoutAQuestionToTheObject) {
  const auto server = InstallSession();
  source_.registered = LoadTypes(Types::kGood);
  Made(L"TerminalSession")->Call(11, {Value(L"RT")});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{205}));
  EXPECT_EQ(server->typeQuestions, 0);
}

TEST_F(Binding, AnObjectWhoseClassTheRegisteredTypesLackIsAskedForItsOwn) {
  const auto server = Install(L"TerminalSession", kElsewhere, __uuidof(ISession));
  source_.registered = LoadTypes(Types::kGood);
  Made(L"TerminalSession")->Call(11, {Value(L"RT")});
  EXPECT_EQ(server->calls, (std::vector<DISPID>{205}));
  EXPECT_GT(server->typeQuestions, 0);
}

TEST_F(Binding, TheFacadesReachTheInstalledLibrary) {
  const auto server = InstallSession();
  server->Answer([](VARIANT& answer) {
    answer.vt = VT_BSTR;
    answer.bstrVal = Bstr(L"OK").Release();
  });
  hostlib::TerminalSession session;
  session.Connect(library_);
  EXPECT_EQ(session.SendEntry(L"RT"), L"OK");
}

TEST_F(Binding, ObjectsAreLetGo) {
  const auto server = InstallSession();
  const ULONG before = server->references();
  {
    const auto session = Made(L"TerminalSession");
    session->Call(9, {});
    EXPECT_GT(server->references(), before);
  }
  EXPECT_EQ(server->references(), before);
}

TEST_F(Binding, FurtherInterfacesAreLetGoWithTheObject) {
  const auto server = InstallChange();
  const ULONG before = answer_->references();
  {
    const auto second = Made(L"PnrElementChange")->Interface(2);
    second->Call(8, {Value(L"response")});
    EXPECT_EQ(answer_->references(), before + 1);
  }
  EXPECT_EQ(answer_->references(), before);
}

}  // namespace
}  // namespace com_tests
