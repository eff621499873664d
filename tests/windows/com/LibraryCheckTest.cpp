#include <TestLibrary.h>

#include "hostlib/com/CallOutcome.h"
#include "hostlib/com/Failures.h"
#include "hostlib/com/LibraryCheck.h"
#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

using hostlib::com::CheckUsedOperations;
namespace operations = hostlib::operations;

constexpr hostlib::Operation kUsed[] = {
    operations::parameter_bag::kSetValue,         operations::parameter_bag::kGetValue,
    operations::terminal_session::kLoadPNR,       operations::terminal_session::kSendCommand,
    operations::terminal_session::kSendEntry,     operations::terminal_session::kSendDisplay,
    operations::terminal_session::kSessionText,   operations::pnr_element_change::kExecute,
    operations::pnr_element_change::kReadResponse};

class LibraryCheck : public ComBench {
 protected:
  void InstallAll(Types types) {
    types_ = LoadTypes(types);
    bag_ = Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
    session_ = Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
    change_ = Install(L"PnrElementChange", __uuidof(::TestChange), __uuidof(IChange));
  }

  ComPtr<TestObject> bag_;
  ComPtr<TestObject> session_;
  ComPtr<TestObject> change_;
};

TEST_F(LibraryCheck, IsQuietWhenEveryOperationStandsInItsSlot) {
  InstallAll(Types::kGood);
  EXPECT_NO_THROW(CheckUsedOperations(library_, kUsed));
}

TEST_F(LibraryCheck, NamesTheSlotThatIsNotThere) {
  InstallAll(Types::kLacksSlot);
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, kUsed); }),
            kMisfit + L"TerminalSession, slot 16 (SessionText): there is no such slot.");
}

TEST_F(LibraryCheck, NamesTheOperationWithAnotherNumberOfArguments) {
  InstallAll(Types::kOtherCount);
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, kUsed); }),
            kMisfit + L"TerminalSession, slot 11 (SendEntry): it takes 2 arguments instead of 1.");
}

TEST_F(LibraryCheck, EndsTheReasonForAnUnreadableDescriptionWithOneFullStop) {
  constexpr auto kFailure = static_cast<HRESULT>(0x80070002);  // a file that is not there
  const std::wstring reason = hostlib::com::TextOf(kFailure);
  ASSERT_TRUE(reason.ends_with(L'.'));
  constexpr int kMostQuestions = 50;
  int unreadable = 0;
  for (int question = 1; question <= kMostQuestions; ++question) {
    source_ = TestSource();
    bag_ = Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
    bag_->BreakWith(std::make_shared<LinkBreak>(LinkBreak{question, kFailure}));
    hostlib::com::ComLibrary library(source_);
    try {
      CheckUsedOperations(library, std::span(kUsed).first(1));
    } catch (const hostlib::com::LibraryDoesNotFit& misfit) {
      if (misfit.words.find(L"can not be read") == std::wstring::npos) continue;
      ++unreadable;
      EXPECT_EQ(misfit.words, kMisfit +
                                  L"ParameterBag, slot 7 (SetValue): its description can "
                                  L"not be read. " +
                                  reason);
    }
  }
  EXPECT_GT(unreadable, 0);
}

TEST_F(LibraryCheck, NamesAFurtherInterface) {
  InstallAll(Types::kGood);
  constexpr hostlib::Operation kUsedMore[] = {{L"PnrElementChange", 2, 9, L"Undo", 1},
                                              {L"PnrElementChange", 3, 7, L"Redo", 0}};
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, kUsedMore); }),
            kMisfit +
                L"PnrElementChange, interface 2, slot 9 (Undo): there is no such slot.\r"
                L"PnrElementChange, interface 3, slot 7 (Redo): there is no interface 3.");
}

TEST_F(LibraryCheck, NamesAnObjectThatIsNotThereOnce) {
  types_ = LoadTypes(Types::kGood);
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, kUsed); }),
            kMisfit + L"PnrElementChange: there is no such object.");
}

TEST_F(LibraryCheck, NamesNoMoreThanTenFaults) {
  types_ = LoadTypes(Types::kGood);
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  const std::wstring words = MisfitOf([&] { CheckUsedOperations(library_); });
  EXPECT_EQ(std::count(words.begin(), words.end(), L'\r'), 12);
  EXPECT_TRUE(words.ends_with(L"\r... and 13 more."));
}

TEST_F(LibraryCheck, NamesAnObjectThatCanNotBeMadeOnceWithTheReason) {
  InstallAll(Types::kGood);
  change_ = Install(L"QueueRequest", kElsewhere, __uuidof(IChange));
  source_.failures[L"Vantel.QueueRequest"] = CLASS_E_CLASSNOTAVAILABLE;
  constexpr hostlib::Operation kAlsoUsed[] = {operations::parameter_bag::kSetValue,
                                              operations::queue_request::kBuildCommand,
                                              operations::queue_request::kReadResponse};
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, kAlsoUsed); }),
            kMisfit + L"QueueRequest: no object can be made. " +
                hostlib::com::TextOf(CLASS_E_CLASSNOTAVAILABLE));
}

TEST_F(LibraryCheck, LeavesAnObjectThatIsDescribedAndNotGivenYetToTheRun) {
  InstallAll(Types::kGood);
  source_.failures[L"Vantel.PnrElementChange"] = CLASS_E_CLASSNOTAVAILABLE;
  EXPECT_NO_THROW(CheckUsedOperations(library_, kUsed));
}

TEST_F(LibraryCheck, LeavesASessionThatCanNotBeMadeToTheRun) {
  InstallAll(Types::kGood);
  source_.failures[L"Vantel.TerminalSession"] = MK_E_UNAVAILABLE;
  EXPECT_NO_THROW(CheckUsedOperations(library_, kUsed));
}

TEST_F(LibraryCheck, HoldsASessionThatCanNotBeMadeAgainstItsTypesAllTheSame) {
  InstallAll(Types::kLacksSlot);
  source_.failures[L"Vantel.TerminalSession"] = MK_E_UNAVAILABLE;
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, kUsed); }),
            kMisfit + L"TerminalSession, slot 16 (SessionText): there is no such slot.");
}

TEST_F(LibraryCheck, SendsNothingAndMakesOneObjectForAllClassesOfATypeLibrary) {
  InstallAll(Types::kGood);
  CheckUsedOperations(library_, kUsed);
  EXPECT_TRUE(bag_->calls.empty() && session_->calls.empty() && change_->calls.empty());
  EXPECT_EQ(source_.made, 1);
}

TEST_F(LibraryCheck, HoldsTheObjectWhoseTypesItReads) {
  InstallAll(Types::kGood);
  const ULONG before = bag_->references();
  std::vector<ULONG> held;
  source_.onSearch = [&] {
    if (source_.made > 0) held.push_back(bag_->references() - before);
  };
  CheckUsedOperations(library_, kUsed);
  ASSERT_FALSE(held.empty());
  EXPECT_EQ(held, std::vector<ULONG>(held.size(), 1));
  EXPECT_EQ(bag_->references(), before);
}

TEST_F(LibraryCheck, LeavesALibraryThatIsNotInstalledToTheRun) {
  EXPECT_NO_THROW(CheckUsedOperations(library_));
}

TEST_F(LibraryCheck, LeavesATerminalThatDoesNotRunToTheRun) {
  InstallAll(Types::kLacksSlot);
  for (const wchar_t* progId :
       {L"Vantel.ParameterBag", L"Vantel.TerminalSession", L"Vantel.PnrElementChange"}) {
    source_.failures[progId] = CO_E_SERVER_EXEC_FAILURE;
  }
  EXPECT_NO_THROW(CheckUsedOperations(library_, kUsed));
}

TEST_F(LibraryCheck, LeavesATerminalThatDoesNotRunToTheRunWhateverIsRegistered) {
  types_ = LoadTypes(Types::kGood);
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  source_.registered = LoadTypes(Types::kLacksSlot);
  source_.failures[L"Vantel.ParameterBag"] = CO_E_SERVER_EXEC_FAILURE;
  EXPECT_NO_THROW(CheckUsedOperations(library_, kUsed));
}

TEST_F(LibraryCheck, NamesTheSlotThatTheRegisteredTypesLack) {
  InstallAll(Types::kGood);
  source_.registered = LoadTypes(Types::kLacksSlot);
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, kUsed); }),
            kMisfit + L"TerminalSession, slot 16 (SessionText): there is no such slot.");
  EXPECT_EQ(bag_->typeQuestions, 0);
}

TEST_F(LibraryCheck, FindsWhatEachOfSeveralTypeLibrariesDescribes) {
  // The session comes from a library of its own: its class is looked for on an object.
  types_ = LoadTypes(Types::kGood);
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  types_ = LoadTypes(Types::kLacksSlot);
  Install(L"TerminalSession", kElsewhere, __uuidof(ISession));
  EXPECT_EQ(MisfitOf([&] { CheckUsedOperations(library_, std::span(kUsed).first(7)); }),
            kMisfit + L"TerminalSession, slot 16 (SessionText): there is no such slot.");
  EXPECT_EQ(source_.made, 2);
}

TEST_F(LibraryCheck, EveryUsedObjectHasAName) {
  for (const hostlib::Operation& operation : hostlib::AllOperations()) {
    EXPECT_EQ(hostlib::com::ProgIdOf(operation.object),
              L"Vantel." + std::wstring(operation.object));
  }
}

}  // namespace
}  // namespace com_tests
