#include <gtest/gtest.h>

#include "practice/rehearsal/ScriptedAgent.h"

namespace practice {
namespace {

class TestForm : public ui::Form {
 public:
  TestForm() : Form(L"frmTest") {
    txtName.onKeyPress = [](wchar_t& key) {
      if (key == L'!') key = 0;
      if (key == L'a') key = L'A';
    };
    cmdOK.onClick = [this] { Hide(); };
    tmrWait.onTimer = [this] { ++ticks; };
  }
  void OnCloseBox() override { Unload(); }

  ui::TextBox txtName{*this, L"txtName"};
  ui::CheckBox chkOP{*this, L"chkOP", L"PNR Follow Up"};
  ui::ListBox lstTST{*this, L"lstTST", ui::ListBox::Selection::kMultiple};
  ui::Button cmdOK{*this, L"cmdOK", L"OK"};
  ui::Timer tmrWait{*this, L"tmrWait"};
  int ticks = 0;
};

std::wstring DisagreementOf(std::wstring_view script, TestForm& form) {
  try {
    ScriptedAgent agent(ReadAgentScript(script));
    agent.ShowModal(form);
    agent.Leave();
  } catch (const Disagreement& disagreement) {
    form.Detach();
    return disagreement.words;
  }
  form.Detach();
  return L"";
}

TEST(ScriptedAgent, TypesThroughTheKeyFilterAndReplacesWhatWasThere) {
  TestForm form;
  form.txtName.SetText(L"before");
  EXPECT_EQ(
      DisagreementOf(L"form frmTest\ntype txtName \"a!b\"\nsee txtName \"Ab\"\nclick cmdOK", form),
      L"");
}

TEST(ScriptedAgent, TypingNothingClearsTheField) {
  TestForm form;
  form.txtName.SetText(L"before");
  EXPECT_EQ(DisagreementOf(L"form frmTest\ntype txtName \"\"\nsee txtName \"\"\nclose", form), L"");
}

TEST(ScriptedAgent, ReadsTicksAndPicks) {
  TestForm form;
  form.lstTST.Add(L"one");
  form.lstTST.Add(L"two");
  form.tmrWait.SetInterval(5000);
  EXPECT_EQ(DisagreementOf(L"form frmTest\nclick chkOP\nstate chkOP ticked\npick lstTST 2\n"
                           L"tick tmrWait 3\nclick cmdOK",
                           form),
            L"");
  EXPECT_FALSE(form.lstTST.Items()[0].selected);
  EXPECT_TRUE(form.lstTST.Items()[1].selected);
  EXPECT_EQ(form.ticks, 3);
}

TEST(ScriptedAgent, DisagreesWhenTheFormShowsAnotherText) {
  TestForm form;
  EXPECT_EQ(DisagreementOf(L"form frmTest\nsee txtName \"x\"", form),
            L"line 2: txtName shows \"\" instead of \"x\"");
}

TEST(ScriptedAgent, DisagreesWhenTheFieldDoesNotLetItself) {
  TestForm form;
  form.txtName.SetLocked(true);
  EXPECT_EQ(DisagreementOf(L"form frmTest\ntype txtName \"x\"", form),
            L"line 2: txtName is locked");
  form.cmdOK.SetEnabled(false);
  EXPECT_EQ(DisagreementOf(L"form frmTest\nclick cmdOK", form),
            L"line 2: cmdOK does not take the focus");
  EXPECT_EQ(DisagreementOf(L"form frmTest\ntick tmrWait", form), L"line 2: tmrWait does not run");
}

TEST(ScriptedAgent, DisagreesWhenAFormWaitsForNobody) {
  TestForm form;
  EXPECT_EQ(DisagreementOf(L"form frmOther", form),
            L"line 1: frmTest waits for an agent who does not expect it");
  EXPECT_EQ(DisagreementOf(L"form frmTest", form),
            L"after the last line: frmTest waits, and the agent has nothing more to do");
}

TEST(ScriptedAgent, DisagreesWhenTheRunEndsTooEarly) {
  TestForm form;
  EXPECT_EQ(DisagreementOf(L"form frmTest\nclose\nbox ok \"never\"", form),
            L"line 3: the run has ended, and the agent is not done");
}

TEST(ScriptedAgent, AnswersABoxWhoseTextStyleAndTitleAgree) {
  ScriptedAgent agent(ReadAgentScript(L"box cancel \"Go on?\" 1 \"Title\"\nbox ok \"Done\""));
  EXPECT_EQ(agent.ShowBox(L"Go on?", 1, L"Title"), 2);
  EXPECT_EQ(agent.ShowBox(L"Done", 0, L""), 1);
  EXPECT_EQ(agent.seen(), (std::vector<std::wstring>{L"box 1 \"Title\" \"Go on?\" -> Cancel",
                                                     L"box 0 \"\" \"Done\" -> OK"}));
}

TEST(ScriptedAgent, DisagreesWithAnotherBox) {
  ScriptedAgent agent(ReadAgentScript(L"box ok \"Go on?\" 48"));
  EXPECT_THROW(agent.ShowBox(L"Go on?", 16, L"Title"), Disagreement);
  EXPECT_THROW(agent.ShowBox(L"Go on", 48, L"Title"), Disagreement);
}

TEST(ScriptedAgent, DisagreesWhenABoxHasNoCancel) {
  ScriptedAgent agent(ReadAgentScript(L"box cancel \"Go on?\""));
  EXPECT_THROW(agent.ShowBox(L"Go on?", 48, L""), Disagreement);
}

TEST(ScriptedAgent, LeavesAFailureOfTheProgramUnderAnActionToTheProgram) {
  TestForm form;
  form.tmrWait.SetInterval(5000);
  form.tmrWait.onTimer = [] { throw common::RunTimeError(L"of the program"); };
  EXPECT_THROW(DisagreementOf(L"form frmTest\ntick tmrWait", form), common::RunTimeError);
  form.Detach();
}

TEST(ScriptedAgent, DisagreesWithATextWhereANumberIsWanted) {
  TestForm form;
  form.lstTST.Add(L"one");
  EXPECT_EQ(DisagreementOf(L"form frmTest\npick lstTST x", form),
            L"line 2: lstTST is not told a number but \"x\"");
}

TEST(ScriptedAgent, CannotActWhileInputIsShut) {
  TestForm form;
  ScriptedAgent agent(ReadAgentScript(L"form frmTest\nclick cmdOK"));
  const ui::InputGate::Shut shut(agent.input());
  EXPECT_THROW(agent.ShowModal(form), Disagreement);
  form.Detach();
}

}  // namespace
}  // namespace practice
