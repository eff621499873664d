#include <TestLibrary.h>

#include "hostlib/com/CallOutcome.h"
#include "tests/windows/com/TestServer.h"

namespace com_tests {
namespace {

using hostlib::LibraryError;
using hostlib::Value;
using Outcome = hostlib::LibraryError::Outcome;

HRESULT STDMETHODCALLTYPE FillInLate(EXCEPINFO* info) {
  info->scode = 77;
  info->bstrDescription = SysAllocString(L"Filled in late");
  return S_OK;
}

class Failures : public ComBench {
 protected:
  Failures() : server_(Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession))) {}

  /// The failure of an entry that the library answers with this result.
  LibraryError FailureWith(std::function<HRESULT(const Received&)> answer) {
    server_->onCall = std::move(answer);
    const auto session = Made(L"TerminalSession");
    return FailureOf([&] { session->Call(11, {Value(L"QE80")}); });
  }
  LibraryError FailureWith(HRESULT result) {
    return FailureWith([result](const Received&) { return result; });
  }

  ComPtr<TestObject> server_;
};

TEST_F(Failures, WhatTheLibraryRaisedArrivesWhole) {
  const auto error = FailureWith([](const Received& call) {
    call.exception->scode = static_cast<SCODE>(0x80040123);
    call.exception->bstrSource = SysAllocString(L"Terminal");
    call.exception->bstrDescription = SysAllocString(L"The session is locked.");
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error.number(), static_cast<std::int32_t>(0x80040123));
  EXPECT_EQ(error.source(), L"Terminal");
  EXPECT_EQ(error.description(), L"The session is locked.");
  EXPECT_EQ(error.object(), L"TerminalSession");
  EXPECT_EQ(error.operation(), L"SendEntry");
  EXPECT_EQ(error.outcome(), Outcome::kRefused);
}

TEST_F(Failures, AShortErrorCodeIsTheNumberWhenThereIsNoOther) {
  const auto error = FailureWith([](const Received& call) {
    call.exception->wCode = 1004;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error.number(), 1004);
}

TEST_F(Failures, WhatTheLibraryLeftForLaterIsFetched) {
  const auto error = FailureWith([](const Received& call) {
    call.exception->pfnDeferredFillIn = FillInLate;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error.number(), 77);
  EXPECT_EQ(error.description(), L"Filled in late");
}

TEST_F(Failures, AFailureWithoutWordsTakesTheSystemsWords) {
  const auto error = FailureWith([](const Received& call) {
    call.exception->scode = E_OUTOFMEMORY;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error.number(), E_OUTOFMEMORY);
  EXPECT_EQ(error.description(), hostlib::com::TextOf(E_OUTOFMEMORY));
  EXPECT_FALSE(error.description().empty());
}

TEST_F(Failures, AResultUnknownToTheSystemIsShownAsANumber) {
  EXPECT_EQ(hostlib::com::TextOf(static_cast<HRESULT>(0x8004ABCD)), L"Error 0x8004ABCD");
}

TEST_F(Failures, TheArgumentThatTheLibraryDoesNotTakeIsNamedInTheWrittenOrder) {
  const auto global = Install(L"ProfileStore", __uuidof(::TestStore), __uuidof(IStore));
  global->onCall = [](const Received& call) {
    *call.badArgument = 1;  // counted from the last
    return DISP_E_TYPEMISMATCH;
  };
  const auto store = Made(L"ProfileStore");
  const auto error = FailureOf([&] {
    store->Call(8, {Value(L"f"), Value(L"s"), Value(L"k"), Value(L"v")});
  });
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
  EXPECT_TRUE(error.description().starts_with(L"Argument 3: ")) << error.description().size();
}

TEST_F(Failures, AnIndexThatPointsNowhereIsLeftOut) {
  const auto error = FailureWith([](const Received& call) {
    *call.badArgument = 9;
    return DISP_E_TYPEMISMATCH;
  });
  EXPECT_EQ(error.description(), hostlib::com::TextOf(DISP_E_TYPEMISMATCH));
}

TEST_F(Failures, AServerThatDiesInsideTheCallInterruptsIt) {
  EXPECT_EQ(FailureWith(RPC_E_SERVER_DIED).outcome(), Outcome::kInterrupted);
  EXPECT_EQ(FailureWith(RPC_E_SERVERFAULT).outcome(), Outcome::kInterrupted);
  EXPECT_EQ(FailureWith(HRESULT_FROM_WIN32(RPC_S_CALL_FAILED)).outcome(), Outcome::kInterrupted);
}

TEST_F(Failures, AServerThatIsGoneBeforeTheCallHasNotGotIt) {
  EXPECT_EQ(FailureWith(HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE)).outcome(), Outcome::kNotSent);
  EXPECT_EQ(FailureWith(RPC_E_SERVER_DIED_DNE).outcome(), Outcome::kNotSent);
  EXPECT_EQ(FailureWith(CO_E_OBJNOTCONNECTED).outcome(), Outcome::kNotSent);
  EXPECT_EQ(FailureWith(RPC_E_CALL_REJECTED).outcome(), Outcome::kNotSent);
}

TEST_F(Failures, ItsWordsTellWhetherTheCallMayHaveBeenCarriedOut) {
  EXPECT_EQ(FailureWith(RPC_E_SERVER_DIED).description(),
            hostlib::com::TextOf(RPC_E_SERVER_DIED) +
                L" (the call broke off: it may have been carried out)");
  EXPECT_EQ(FailureWith(RPC_E_DISCONNECTED).description(),
            hostlib::com::TextOf(RPC_E_DISCONNECTED) + L" (the call was not made)");
  EXPECT_EQ(FailureWith(E_FAIL).description(), hostlib::com::TextOf(E_FAIL));
}

TEST_F(Failures, ALibrarysOwnFailureIsItsAnswerWhateverItsNumber) {
  const auto error = FailureWith([](const Received& call) {
    call.exception->scode = RPC_E_SERVER_DIED;
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(error.outcome(), Outcome::kRefused);
}

TEST_F(Failures, AReferenceThatCanNotBeConvertedIsNeverSent) {
  const auto queue = Install(L"QueueRequest", __uuidof(::TestQueue), __uuidof(IQueue));
  const auto request = Made(L"QueueRequest");
  const auto error = FailureOf([&] { request->Call(7, {Value(hostlib::TextArray{{L"a"}, 0})}); });
  EXPECT_EQ(error.number(), DISP_E_TYPEMISMATCH);
  EXPECT_EQ(error.operation(), L"BuildCommand");
  EXPECT_TRUE(queue->calls.empty());
}

TEST_F(Failures, AClassThatIsNotInstalledIsNamed) {
  const auto error = FailureOf([&] { Made(L"PrintRequest"); });
  EXPECT_EQ(error.number(), REGDB_E_CLASSNOTREG);
  EXPECT_EQ(error.object(), L"PrintRequest");
  EXPECT_EQ(error.outcome(), Outcome::kNotSent);
  EXPECT_TRUE(error.description().starts_with(L"Vantel.PrintRequest is not installed: "));
}

TEST_F(Failures, AClassThatNoProgramMakesHasNoName) {
  EXPECT_EQ(FailureOf([&] { Made(L"List"); }).number(), CO_E_CLASSSTRING);
  EXPECT_EQ(source_.searched, 0);
}

TEST_F(Failures, AnObjectThatCanNotBeMadeSaysWhy) {
  source_.failures[L"Vantel.TerminalSession"] = MK_E_UNAVAILABLE;
  const auto error = FailureOf([&] { Made(L"TerminalSession"); });
  EXPECT_EQ(error.number(), MK_E_UNAVAILABLE);
  EXPECT_EQ(error.outcome(), Outcome::kNotSent);
  EXPECT_TRUE(error.description().starts_with(L"Vantel.TerminalSession could not be made: "));
}

TEST_F(Failures, ATerminalWithMoreRightsIsSaidToBeOutOfReach) {
  source_.failures[L"Vantel.TerminalSession"] = MK_E_UNAVAILABLE;
  source_.isOutOfReach = true;
  const auto error = FailureOf([&] { Made(L"TerminalSession"); });
  EXPECT_EQ(error.number(), hostlib::kTerminalIsElevated);
  EXPECT_EQ(error.description(),
            L"The Vantel session runs as administrator and this program does not.\r\r"
            L"Start both of them in the same way.");
}

TEST_F(Failures, AProgramThatIsAboutToEndIsAskedOnceMore) {
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  source_.stopping = 1;
  EXPECT_NE(Made(L"TerminalSession"), nullptr);
  source_.stopping = 2;
  const auto error = FailureOf([&] { Made(L"TerminalSession"); });
  EXPECT_EQ(error.number(), CO_E_SERVER_STOPPING);
  EXPECT_EQ(error.outcome(), Outcome::kNotSent);
}

}  // namespace
}  // namespace com_tests
