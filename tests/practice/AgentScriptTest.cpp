#include <gtest/gtest.h>

#include "practice/rehearsal/AgentScript.h"

namespace practice {
namespace {

std::wstring ErrorOf(std::wstring_view script) {
  try {
    ReadAgentScript(script);
  } catch (const AgentScriptError& error) {
    return error.description();
  }
  return L"";
}

TEST(AgentScript, WordsAndQuotedTextsAreReadInOrder) {
  const auto lines = ReadAgentScript(L"type txtPWCT \"SK AT ARN\"");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].verb, L"type");
  EXPECT_EQ(lines[0].words, (std::vector<std::wstring>{L"txtPWCT", L"SK AT ARN"}));
}

TEST(AgentScript, EmptyLinesAndCommentsKeepTheirLineNumbers) {
  const auto lines = ReadAgentScript(L"# the agent\r\n\r\n  form frmPTA\r\n");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].number, 3);
  EXPECT_EQ(lines[0].Word(0), L"frmPTA");
  EXPECT_EQ(lines[0].Word(1), L"");
}

TEST(AgentScript, EscapesStandForLineEndsQuotesAndTheBackslash) {
  const auto lines = ReadAgentScript(LR"(see a "x\r\n\"\\y")");
  EXPECT_EQ(lines[0].Word(1), L"x\r\n\"\\y");
}

TEST(AgentScript, WhatIsNotOfTheFormatIsNamedWithItsLine) {
  EXPECT_EQ(ErrorOf(L"form frmPTA\njump a"), L"line 2: \"jump\" is no instruction");
  EXPECT_EQ(ErrorOf(L"see txtPTA"), L"line 1: \"see\" with the wrong number of words");
  EXPECT_EQ(ErrorOf(L"see txtPTA \"x"), L"line 1: a text without its closing quote");
  EXPECT_EQ(ErrorOf(LR"(see txtPTA "\q")"),
            L"line 1: an escape that is not \\r, \\n, \\\" or \\\\");
  EXPECT_EQ(ErrorOf(L"box maybe \"x\""), L"line 1: a box is answered with ok or cancel");
}

}  // namespace
}  // namespace practice
