#include <gmock/gmock.h>

#include "journal/JournalDesktop.h"
#include "tests/journal/JournalBench.h"
#include "tests/support/FakeDesktop.h"

namespace journal {
namespace {

using testing::ElementsAre;

struct PaymentForm : ui::Form {
  PaymentForm() : Form(L"frmPayment") {}
  ui::TextBox txtFormOfPayment{*this, L"txtFormOfPayment"};
};

struct JournalDesktopTest : testing::Test {
  JournalDesktopTest() { writer.Open(L"1.2.3"); }

  JournalBench bench;
  Writer writer{bench.folder, bench.clock};
  PaymentFields fields{writer.masking()};
  support::FakeDesktop inner;
  JournalDesktop desktop{inner, writer, bench.clock, fields};
};

TEST_F(JournalDesktopTest, HandsEverythingOn) {
  PaymentForm form;
  inner.answers = {common::kCancel};
  desktop.Show(form);
  desktop.Refresh(form);
  desktop.ShowModal(form);
  desktop.Beep();
  desktop.Pause(std::chrono::milliseconds(100));
  desktop.Run();
  EXPECT_EQ(desktop.ShowBox(L"text", 33, L"title"), common::kCancel);
  EXPECT_THAT(inner.log, ElementsAre(L"show frmPayment", L"refresh frmPayment", L"modal frmPayment",
                                     L"close frmPayment", L"beep", L"pause 100", L"run",
                                     L"box 33 \"title\" \"text\" -> 2"));
}

TEST_F(JournalDesktopTest, HasTheOneGateOfTheRealDesktop) {
  const ui::InputGate::Shut shut(desktop.input());
  EXPECT_FALSE(inner.input().IsOpen());
  EXPECT_EQ(&desktop.input(), &inner.input());
}

TEST_F(JournalDesktopTest, WritesABoxBeforeItIsShownAndItsAnswerAfterwards) {
  class Seer : public support::FakeDesktop {
   public:
    explicit Seer(JournalBench& bench) : bench_(bench) {}
    int ShowBox(std::wstring_view, int, std::wstring_view) override {
      seen = bench_.OwnLines();
      bench_.clock.time += std::chrono::milliseconds(2500);
      return common::kCancel;
    }
    std::vector<std::wstring> seen;

   private:
    JournalBench& bench_;
  };
  Seer seer(bench);
  JournalDesktop before(seer, writer, bench.clock, fields);
  before.ShowBox(L"One\rTwo", 49, L"");
  EXPECT_THAT(seer.seen, ElementsAre(L"Box of style 49:"));
  EXPECT_THAT(bench.OwnLines(),
              ElementsAre(L"Box of style 49:", L"Box answered Cancel after 2.500 s"));
}

TEST_F(JournalDesktopTest, NamesTheButtonThatTheAgentChose) {
  inner.answers = {common::kOk, common::kRetry, common::kCancel};
  for (int box = 0; box < 3; ++box) desktop.ShowBox(L"text", 0, L"");
  EXPECT_THAT(bench.OwnLines(), testing::IsSupersetOf({L"Box answered OK after 0.000 s",
                                                       L"Box answered Retry after 0.000 s",
                                                       L"Box answered Cancel after 0.000 s"}));
}

TEST_F(JournalDesktopTest, WritesTheWindowsOnce) {
  PaymentForm form;
  desktop.Show(form);
  desktop.Show(form);
  EXPECT_THAT(bench.OwnLines(), ElementsAre(L"Window frmPayment shown"));
}

TEST_F(JournalDesktopTest, WritesNoWindowThatWasNotSeen) {
  struct Shy : ui::Form {
    Shy() : Form(L"frmShy") {}
    void OnLoad() override { Unload(); }
  };
  Shy form;
  desktop.Show(form);
  EXPECT_TRUE(bench.OwnLines().empty());
}

TEST_F(JournalDesktopTest, MasksWhatStandsInThePaymentFieldAtThatMoment) {
  PaymentForm form;
  desktop.Show(form);
  form.txtFormOfPayment.SetText(L"GRANT77");
  desktop.ShowBox(L"Is GRANT77 right?", 33, L"");
  form.txtFormOfPayment.SetText(L"GRANT88");
  desktop.ShowBox(L"GRANT77 or GRANT88?", 33, L"");
  const std::wstring text = bench.folder.Text();
  EXPECT_NE(text.find(L"    | Is <payment> right?\n"), text.npos);
  EXPECT_NE(text.find(L"    | <payment> or <payment>?\n"), text.npos);
}

TEST_F(JournalDesktopTest, DoesNotLookAtAFormThatIsGone) {
  {
    PaymentForm form;
    desktop.Show(form);
  }
  desktop.ShowBox(L"text", 0, L"");
  EXPECT_THAT(bench.OwnLines(), ElementsAre(L"Window frmPayment shown", L"Box of style 0:",
                                            L"Box answered OK after 0.000 s"));
}

}  // namespace
}  // namespace journal
