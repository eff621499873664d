#include <gtest/gtest.h>

#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/Terminal.h"

namespace {

using client::Call;
using client::ComPtr;
using client::Failure;
using client::Variant;

std::vector<Variant> Arguments(Variant first) {
  std::vector<Variant> arguments;
  arguments.push_back(std::move(first));
  return arguments;
}

TEST(TerminalCall, ABagGivesBackWhatItWasGiven) {
  const auto bag = client::Bag({{L"strKeyText", L"PWCT SK"}});
  EXPECT_EQ(client::TextIn(*bag.Get(), L"strKeyText"), L"PWCT SK");
}

TEST(TerminalCall, ABagGoesToTheLibraryAsTheObjectThatItIs) {
  const auto builder = client::Make(L"PnrElementBuilderRM");
  const auto bag = client::Bag({{L"strKeyText", L"HELLO"}, {L"strKeyPasAsso", L""}});
  EXPECT_EQ(client::TextIn(Call(*builder.Get(), L"Execute", Arguments(client::Object(bag)))),
            L"RM HELLO");
}

TEST(TerminalCall, AFailureArrivesWithNumberSourceAndText) {
  const auto global = client::Make(L"ScriptGlobal");
  try {
    Call(*global.Get(), L"HostDateToText", Arguments(client::Text(L"99XXX99")));
    FAIL() << "no failure";
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.result, DISP_E_EXCEPTION);
    EXPECT_EQ(static_cast<unsigned long>(failure.number), 0x80040901UL);
    EXPECT_EQ(failure.source, L"Practice library");
    EXPECT_EQ(failure.text, L"\"99XXX99\" is no date");
  }
}

TEST(TerminalCall, WithoutATerminalWindowNoSessionCanBeMade) {
  ComPtr<IDispatch> session;
  EXPECT_EQ(static_cast<unsigned long>(client::Make(L"TerminalSession", session)), 0x80040902UL);
}

}  // namespace
