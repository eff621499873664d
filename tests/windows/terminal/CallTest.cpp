#include <gtest/gtest.h>

#include "VantelPractice.h"
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

TEST(TerminalCall, AMethodIsReachedThroughItsPlaceInTheInterfaceToo) {
  const auto object = client::Make(L"ScriptGlobal");
  ComPtr<IScriptGlobal> global;
  ASSERT_EQ(object.As(&global), S_OK);
  hostlib::com::Bstr field;
  ASSERT_EQ(global->GetField(hostlib::com::Bstr(L"AP,TK").get(), 2, hostlib::com::Bstr(L",").get(),
                             field.Out()),
            S_OK);
  EXPECT_EQ(field.view(), L"TK");
}

TEST(TerminalCall, APlaceholderDoesNothing) {
  const auto object = client::Make(L"ScriptGlobal");
  ComPtr<IScriptGlobal> global;
  ASSERT_EQ(object.As(&global), S_OK);
  EXPECT_EQ(global->Unused8(), E_NOTIMPL);
}

HRESULT ResultOf(IDispatch& object, const wchar_t* name, std::vector<Variant> arguments) {
  try {
    Call(object, name, std::move(arguments));
    return S_OK;
  } catch (const Failure& failure) {
    return failure.result;
  }
}

TEST(TerminalCall, WrongArgumentsAreRefusedAndTheTerminalGoesOn) {
  const auto global = client::Make(L"ScriptGlobal");
  const auto builder = client::Make(L"PnrElementBuilderRM");
  EXPECT_EQ(ResultOf(*global.Get(), L"GetField", Arguments(client::Text(L"A"))),
            DISP_E_BADPARAMCOUNT);
  EXPECT_EQ(ResultOf(*global.Get(), L"NoSuchOperation", {}), DISP_E_UNKNOWNNAME);
  EXPECT_EQ(ResultOf(*builder.Get(), L"Execute", Arguments(client::Text(L"no bag"))),
            DISP_E_TYPEMISMATCH);
  EXPECT_EQ(ResultOf(*builder.Get(), L"Execute", Arguments(client::Object(nullptr))),
            DISP_E_EXCEPTION);
  EXPECT_EQ(ResultOf(*builder.Get(), L"Execute", Arguments(client::Object(global))),
            DISP_E_EXCEPTION);
  EXPECT_EQ(client::TextIn(Call(*global.Get(), L"ToText", Arguments(client::Number(7)))), L"7");
}

}  // namespace
