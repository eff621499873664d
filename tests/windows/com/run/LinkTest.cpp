#include <thread>

#include "app/AttachObjects.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/com/LibraryCheck.h"
#include "tests/windows/com/run/RunningTerminal.h"
#include "tests/windows/driver/Driver.h"
#include "ui/frmWorking.h"

namespace com_run {
namespace {

using hostlib::LibraryError;
using hostlib::Value;
using Outcome = LibraryError::Outcome;

class Link : public RunningTerminal {};

template <typename Action>
LibraryError FailureOf(Action action) {
  try {
    action();
  } catch (const LibraryError& error) {
    return error;
  }
  ADD_FAILURE() << "nothing failed";
  return LibraryError(0, L"", L"");
}

TEST_F(Link, EveryOperationOfTheProgramStandsInItsSlot) {
  Telling([&] {
    Start();
    EXPECT_NO_THROW(hostlib::com::CheckUsedOperations(library_));
  });
}

TEST_F(Link, TheCheckOfTheLibraryLeavesNoObjectBehind) {
  Telling([&] {
    Start();
    hostlib::com::CheckUsedOperations(library_);
    EXPECT_EQ(client::LiveObjects(), 0);
  });
}

TEST_F(Link, EveryKindOfValueComesBackAsItWent) {
  Telling([&] {
    Start();
    const auto bag = library_.Create(L"ParameterBag");
    const std::vector<Value> values{
        Value(),
        Value(true),
        Value(false),
        Value(std::int16_t{-3}),
        Value(123456),
        Value(0.1),
        Value(L"A\u00C5 B"),
        Value(hostlib::TextArray{{L"", L"AP"}, 0}),
        Value(hostlib::TextArray{{L"one"}, 1}),
    };
    for (const Value& value : values) {
      bag->Call(7, {Value(L"key"), value});
      const Value got = bag->Call(8, {Value(L"key")});
      if (value.IsArray() && got.IsObject()) {
        EXPECT_EQ(hostlib::TextsOf(got), hostlib::TextsOf(value));
      } else {
        EXPECT_EQ(got, value);
      }
    }
  });
}

TEST_F(Link, TheTerminalReadsTheProgressFormAndTheApplicationThatAttach) {
  Telling([&] {
    Start();
    ui::frmWorking form;
    form.SetCaption(L"  PTA Script ");
    hostlib::ScriptGlobal global(library_);
    EXPECT_FALSE(global.Attach(app::MakeProgressFormObject(form, form.lblWorking),
                               app::MakeApplicationObject(platform_)));
    EXPECT_EQ(terminal_->Attached(),
              L"  PTA Script \nRetrieving information from Corvane...\n  PTA Script \n" +
                  platform_.folder + L"\n1");
  });
}

TEST_F(Link, WithoutATerminalTheSessionCanNotBeMade) {
  Telling([&] {
    const auto bag = library_.Create(L"ParameterBag");
    const auto error = FailureOf([&] { library_.Create(L"TerminalSession"); });
    EXPECT_EQ(error.outcome(), Outcome::kNotSent);
    EXPECT_EQ(error.object(), L"TerminalSession");
  });
}

TEST_F(Link, ATerminalThatDiesInsideACallAndOneThatIsGoneAreToldApart) {
  Telling([&] {
    Start();
    const auto reporter = library_.Create(L"ScriptErrorReporter");
    const auto session = library_.Create(L"TerminalSession");
    session->Call(11, {Value(L"RT")});
    std::thread killer([this] {
      driver::Holds([] { return FindWindowW(L"#32770", L"Dies") != nullptr; });
      terminal_->Kill();
    });
    const auto inside = FailureOf([&] {
      reporter->Call(18, {Value(1), Value(L"Dies"), Value(L"in this call"), Value(16)});
    });
    killer.join();
    EXPECT_EQ(inside.outcome(), Outcome::kInterrupted);
    EXPECT_EQ(inside.operation(), L"ShowError");
    const auto before = FailureOf([&] { session->Call(11, {Value(L"RT")}); });
    EXPECT_EQ(before.outcome(), Outcome::kNotSent);
    EXPECT_EQ(before.operation(), L"SendEntry");
  });
}

TEST_F(Link, ATerminalOpenedAfterOneThatWasKilledTakesItsPlace) {
  Telling([&] {
    Start();
    terminal_->Kill();
    Start();
    const auto session = library_.Create(L"TerminalSession");
    EXPECT_NE(session->Call(11, {Value(L"RT")}).Text(), L"");
  });
}

}  // namespace
}  // namespace com_run
