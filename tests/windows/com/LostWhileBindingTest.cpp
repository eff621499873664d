#include <TestLibrary.h>
#include <rpc.h>

#include "hostlib/com/CallOutcome.h"
#include "hostlib/com/LibraryCheck.h"
#include "tests/windows/com/TestServer.h"

// A terminal that goes away, or stays busy, while the program finds out how to call it: whichever
// of its questions is the one that is not answered, that is no fault of the library.
namespace com_tests {
namespace {

namespace operations = hostlib::operations;
using hostlib::LibraryError;
using hostlib::Value;
using Outcome = LibraryError::Outcome;

constexpr hostlib::Operation kUsed[] = {
    operations::parameter_bag::kSetValue, operations::terminal_session::kSendEntry,
    operations::pnr_element_change::kExecute, operations::pnr_element_change::kReadResponse};

class LostWhileBinding : public ComBench, public testing::WithParamInterface<HRESULT> {
 protected:
  /// One library for each question: the first breaks at the first, and so on until none is left.
  template <typename Body>
  void AtEveryQuestion(Body body) {
    for (int question = 1;; ++question) {
      SCOPED_TRACE("question " + std::to_string(question));
      link_ = std::make_shared<LinkBreak>(LinkBreak{question, GetParam()});
      source_ = TestSource();
      bag_ = Breaking(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
      session_ = Breaking(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
      change_ = Breaking(L"PnrElementChange", __uuidof(::TestChange), __uuidof(IChange));
      answer_ = new TestObject(nullptr);
      change_->AddInterface(__uuidof(IChangeAnswer), answer_);
      hostlib::com::ComLibrary library(source_);
      body(library);
      if (HasFailure()) return;
      if (link_->asked < question) {
        EXPECT_GT(question, kLeastQuestions);
        return;
      }
    }
  }

  static void IsOfTheLink(const LibraryError& error) {
    EXPECT_EQ(error.number(), GetParam());
    EXPECT_EQ(error.outcome(), Outcome::kNotSent);
  }

  ComPtr<TestObject> bag_;
  ComPtr<TestObject> session_;
  ComPtr<TestObject> change_;
  ComPtr<TestObject> answer_;
  std::shared_ptr<LinkBreak> link_;

 private:
  static constexpr int kLeastQuestions = 8;

  ComPtr<TestObject> Breaking(std::wstring_view className, const CLSID& classId, const IID& id) {
    auto object = Install(className, classId, id);
    object->BreakWith(link_);
    return object;
  }
};

TEST_P(LostWhileBinding, ACallIsNotSentAndTheNextOneIsBoundAnew) {
  AtEveryQuestion([this](hostlib::com::ComLibrary& library) {
    const auto session = library.Create(L"TerminalSession");
    const auto send = [&] { session->Call(11, {Value(L"QE80")}); };
    try {
      send();
    } catch (const LibraryError& error) {
      IsOfTheLink(error);
      EXPECT_EQ(error.operation(), L"SendEntry");
      EXPECT_TRUE(session_->calls.empty());
      EXPECT_NO_THROW(send());
    }
    EXPECT_EQ(session_->calls, (std::vector<DISPID>{205}));
  });
}

TEST_P(LostWhileBinding, AFurtherInterfaceIsFoundTheNextTime) {
  AtEveryQuestion([this](hostlib::com::ComLibrary& library) {
    const auto change = library.Create(L"PnrElementChange");
    const auto read = [&] { change->Interface(2)->Call(8, {Value(L"OK")}); };
    try {
      read();
    } catch (const LibraryError& error) {
      IsOfTheLink(error);
      EXPECT_TRUE(answer_->calls.empty());
      EXPECT_NO_THROW(read());
    }
    EXPECT_EQ(answer_->calls, (std::vector<DISPID>{502}));
  });
}

TEST_P(LostWhileBinding, TheCheckDoesNotTakeItForAFaultOfTheLibrary) {
  AtEveryQuestion([](hostlib::com::ComLibrary& library) {
    try {
      hostlib::com::CheckUsedOperations(library, kUsed);
    } catch (const LibraryError& error) {
      IsOfTheLink(error);
    }
    EXPECT_NO_THROW(hostlib::com::CheckUsedOperations(library, kUsed));
  });
}

TEST_P(LostWhileBinding, ARunOnTheCheckedLibraryHasNoObjectForThatReason) {
  std::map<std::wstring, int> broken;
  AtEveryQuestion([&broken](hostlib::com::ComLibrary& library) {
    hostlib::com::CheckedLibrary checked(library, kUsed);
    for (const wchar_t* className : {L"ParameterBag", L"TerminalSession"}) {
      try {
        EXPECT_NE(checked.Create(className), nullptr);
      } catch (const LibraryError& error) {
        ++broken[className];
        IsOfTheLink(error);
        EXPECT_EQ(error.object(), className);
        EXPECT_EQ(error.operation(), L"Create");
        EXPECT_NE(checked.Create(className), nullptr);
      }
    }
  });
  EXPECT_GT(broken[L"ParameterBag"], 0);
  EXPECT_GT(broken[L"TerminalSession"], 0);
}

TEST_P(LostWhileBinding, AMisfitIsStillFoundTheNextTime) {
  types_ = LoadTypes(Types::kLacksSlot);
  AtEveryQuestion([](hostlib::com::ComLibrary& library) {
    constexpr hostlib::Operation kLacking[] = {operations::parameter_bag::kSetValue,
                                               operations::terminal_session::kSessionText};
    hostlib::com::CheckedLibrary checked(library, kLacking);
    const auto create = [&checked](const wchar_t* className) {
      try {
        checked.Create(className);
      } catch (const LibraryError& error) {
        IsOfTheLink(error);
      }
    };
    create(L"ParameterBag");
    EXPECT_THROW(
        {
          create(L"TerminalSession");
          create(L"TerminalSession");
        },
        hostlib::com::LibraryDoesNotFit);
  });
}

TEST_P(LostWhileBinding, AnObjectThatIsNotMadeForItIsNoFaultOfTheLibraryEither) {
  Install(L"ParameterBag", __uuidof(::TestBag), __uuidof(IBag));
  Install(L"TerminalSession", __uuidof(::TestSession), __uuidof(ISession));
  // Not described by the others' types, so that an object of it is needed.
  Install(L"PnrElementChange", kElsewhere, __uuidof(IChange));
  source_.failures[L"Vantel.PnrElementChange"] = GetParam();
  IsOfTheLink(FailureOf([&] { hostlib::com::CheckUsedOperations(library_, kUsed); }));
}

INSTANTIATE_TEST_SUITE_P(Results, LostWhileBinding,
                         testing::Values(HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE),
                                         HRESULT_FROM_WIN32(RPC_S_CALL_FAILED), RPC_E_SERVER_DIED,
                                         RPC_E_CALL_REJECTED));

}  // namespace
}  // namespace com_tests
