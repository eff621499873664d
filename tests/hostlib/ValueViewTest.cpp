#include <gtest/gtest.h>

#include "hostlib/Recorder.h"
#include "hostlib/Requests.h"
#include "hostlib/TerminalSession.h"
#include "practice/library/ParameterBagObject.h"
#include "tests/support/ScriptedLibrary.h"

namespace hostlib {
namespace {

const std::wstring kText = L"RM PWCT SK AT ARN A/P BEFORE DEPARTURE";

const wchar_t* PlaceOf(const ValueView& view) { return view.If<std::wstring_view>()->data(); }

TEST(ValueView, LendsATextWhereItStands) {
  EXPECT_EQ(PlaceOf(kText), kText.data());
  const Value value(kText);
  EXPECT_EQ(PlaceOf(value), value.If<std::wstring>()->data());
}

TEST(ValueView, LendsAnArrayAndAnObjectWhereTheyStand) {
  const Value texts(TextArray{{L"a"}, 1});
  EXPECT_EQ(ValueView(texts).If<TextArray>(), texts.If<TextArray>());
  const Value object(ObjectPtr(std::make_shared<practice::ListObject>(Value(), nullptr)));
  EXPECT_EQ(ValueView(object).If<ObjectPtr>(), object.If<ObjectPtr>());
}

TEST(ValueView, OfEveryKindIsTheSameValueWhenCopied) {
  const ObjectPtr object = std::make_shared<practice::ListObject>(Value(), nullptr);
  for (const Value& value :
       {Value(), Value(Missing{}), Value(true), Value(std::int16_t{7}), Value(7), Value(2.5),
        Value(kText), Value(TextArray{{L"a", L"b"}, 1}), Value(IntegerArray{{1, 2}, 0}),
        Value(DoubleArray{{1.5}, 1}), Value(object), Value(ObjectPtr())}) {
    EXPECT_EQ(Value(ValueView(value)), value) << testing::PrintToString(ValueView(value).Kind());
  }
}

TEST(ValueView, TellsItsKindInWords) {
  const std::vector<std::pair<Value, std::wstring_view>> kinds = {
      {Value(), L"nothing"},
      {Value(Missing{}), L"a missing argument"},
      {Value(true), L"a boolean"},
      {Value(std::int16_t{7}), L"a 16-bit integer"},
      {Value(7), L"a 32-bit integer"},
      {Value(2.5), L"a double"},
      {Value(kText), L"a text"},
      {Value(TextArray()), L"an array of texts"},
      {Value(IntegerArray()), L"an array of integers"},
      {Value(DoubleArray()), L"an array of doubles"},
      {Value(ObjectPtr()), L"an object"}};
  for (const auto& [value, words] : kinds) EXPECT_EQ(ValueView(value).Kind(), words);
}

TEST(ValueView, IsAskedForItsKindAsAValueIs) {
  EXPECT_TRUE(ValueView().IsEmpty());
  EXPECT_TRUE(ValueView(Missing{}).IsMissing());
  EXPECT_TRUE(ValueView(DoubleArray()).IsArray());
  EXPECT_FALSE(ValueView(kText).IsArray());
  EXPECT_TRUE(ValueView(ObjectPtr()).IsObject());
  EXPECT_EQ(ValueView(kText).If<bool>(), nullptr);
  EXPECT_EQ(ValueView(true).If<TextArray>(), nullptr);
}

/// Where the entry that the library was given stands.
const wchar_t* PlaceOfSent(support::ScriptedLibrary& scripted, Library& library) {
  const wchar_t* given = nullptr;
  scripted.On(operations::terminal_session::kSendEntry, [&](const Arguments& arguments) {
    given = PlaceOf(arguments.front());
    return Value(L"");
  });
  TerminalSession session;
  session.Connect(library);
  session.SendEntry(kText);
  return given;
}

TEST(ACall, IsGivenTheProgramsOwnTexts) {
  support::ScriptedLibrary library;
  EXPECT_EQ(PlaceOfSent(library, library), kText.data());
}

TEST(ACall, IsGivenTheProgramsOwnTextsThroughAHookToo) {
  support::ScriptedLibrary library;
  Recorder recorder;
  InterposedLibrary hooked(library, recorder);
  EXPECT_EQ(PlaceOfSent(library, hooked), kText.data());
}

TEST(ABag, KeepsACopyOfWhatItIsLent) {
  support::ScriptedLibrary library;
  ParameterBag bag(library);
  std::wstring text = kText;
  bag.SetValue(L"strKeyText", text);
  text.clear();
  EXPECT_EQ(bag.GetValue(L"strKeyText").Text(), kText);
}

}  // namespace
}  // namespace hostlib
