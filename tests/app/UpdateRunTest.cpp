#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Rooms.h"
#include "app/UpdateRun.h"
#include "common/RunTimeError.h"
#include "tests/support/RoomBench.h"

// What the run takes from the dialog, and what it shows when it fails itself.
namespace app {
namespace {

using namespace hostlib::operations;
using Lines = std::vector<std::wstring>;

/// The run's records, as they are from its first step on.
struct Records : Common {
  explicit Records(hostlib::Library& library) : Common(library) { CreateRecords(); }
};

/// A confirmed dialog over a PNR without anything to change, and a host that takes everything.
struct UpdateRunBench : support::RoomBench {
  UpdateRunBench() {
    common.session.Connect(library);
    common.pnr->strTicketingAction = L"OK";
    dialog.chkTSTNoUpdate.SetValue(true);
    scripted.Answer(terminal_session::kSendEntry, L"ANSWER");
    scripted.Answer(terminal_session::kSendCommand, L"LONG ANSWER");
    for (const hostlib::Operation* execute :
         {&pnr_element_builder::kExecuteFO, &pnr_element_builder::kExecuteFP,
          &pnr_element_builder::kExecuteFV, &pnr_element_builder::kExecuteFM,
          &pnr_element_builder::kExecuteRM}) {
      scripted.Answer(*execute, L"ELEMENT");
    }
    AnswerFlag(pnr_element_entry::kReadResponse, L"blnKeyPNRFound");
    scripted.Answer(queue_request::kBuildCommand, L"QE");
    AnswerFlag(queue_request::kReadResponse, L"blnKeyQuePNR");
  }
  void AnswerFlag(const hostlib::Operation& operation, std::wstring_view key) {
    scripted.Answer(operation, hostlib::ObjectPtr(scripted.Bag({{key, true}})));
  }
  /// The calls of the run, after whose last step the forms must have been unloaded.
  Lines Run() {
    TakeCalls();
    const int before = runEnd.unloads;
    rooms.updateRun.Start();
    EXPECT_EQ(runEnd.unloads, before + 1);
    return TakeCalls();
  }
  /// The calls of a run that a failure breaks off.
  Lines RunThatFails() {
    TakeCalls();
    EXPECT_THROW(rooms.updateRun.Start(), support::EndedByEndScript);
    EXPECT_EQ(runEnd.unloads, 0);
    return TakeCalls();
  }
  bool IsLHAfter(std::wstring_view officeID) {
    dialog.txtQueueingOfficeID.SetText(officeID);
    Run();
    return common.pnr->blnLH;
  }

  Records common{library};
  ui::frmWorking working;
  ui::frmPTA dialog{desktop, errors, runEnd};
  Rooms rooms{library, desktop, scripted.platform, errors, runEnd, common, working, dialog};
};

TEST(UpdateRun, TheQueueIsTakenWithoutTheBlanksAroundIt) {
  UpdateRunBench bench;
  bench.dialog.txtQueueingOfficeID.SetText(L"STOSK08AA");
  bench.dialog.txtQueueCat.SetText(L"  80 ");
  EXPECT_THAT(bench.Run(),
              testing::Contains(L"ParameterBag.1.7 SetValue(\"strKeyQueNumber\", \"80\")"));
}

TEST(UpdateRun, TheOfficeIsTakenWithoutTheBlanksAroundIt) {
  UpdateRunBench bench;
  bench.dialog.txtQueueingOfficeID.SetText(L"  STOSK08AA ");
  const Lines calls = bench.Run();
  EXPECT_THAT(calls, testing::Contains(testing::HasSubstr(L", \"STOSK08AA\")")));
  EXPECT_THAT(calls, testing::Not(testing::Contains(testing::HasSubstr(L"STOSK08AA "))));
}

TEST(UpdateRun, TheAirlineIsTakenFromTheDialogWithoutTheBlanksAroundIt) {
  UpdateRunBench bench;
  bench.common.mco->strAirlineCode = L"LH";
  bench.dialog.txtCarrier.SetText(L" SK ");
  bench.Run();
  EXPECT_EQ(bench.common.mco->strAirlineCode, L"SK");
}

TEST(UpdateRun, TheDocumentNumberIsRebuiltFromItsTwoFields) {
  UpdateRunBench bench;
  bench.common.mco->strMCONumber = L"220-1111111111";
  bench.dialog.txtAirlinePrefix.SetText(L" 117 ");
  bench.dialog.txtMCONumber.SetText(L" 4012345678 ");
  bench.Run();
  EXPECT_EQ(bench.common.mco->strMCONumber, L"117-4012345678");
}

TEST(UpdateRun, TheCommissionIsTakenFromTheDialogWithoutTheBlanksAroundIt) {
  UpdateRunBench bench;
  bench.common.mco->strCommission = L"9";
  bench.dialog.txtCommission.SetText(L" 10 ");
  bench.Run();
  EXPECT_EQ(bench.common.mco->strCommission, L"10");
}

TEST(UpdateRun, AFormOfPaymentOfBlanksIsNotTaken) {
  UpdateRunBench bench;
  bench.common.mco->strFormOfPayment = L"CASH";
  bench.dialog.txtFormOfPayment.SetText(L"   ");
  bench.Run();
  EXPECT_EQ(bench.common.mco->strFormOfPayment, L"CASH");
}

TEST(UpdateRun, AFormOfPaymentIsTakenWithoutTheBlanksAroundIt) {
  UpdateRunBench bench;
  bench.common.mco->strFormOfPayment = L"CASH";
  bench.dialog.txtFormOfPayment.SetText(L" CHECK ");
  bench.Run();
  EXPECT_EQ(bench.common.mco->strFormOfPayment, L"CHECK");
}

TEST(UpdateRun, LH0CountsAnywhereInTheOfficeID) {
  EXPECT_TRUE(UpdateRunBench().IsLHAfter(L"FRALH0123"));
  EXPECT_TRUE(UpdateRunBench().IsLHAfter(L"LH0FRA123"));
  EXPECT_TRUE(UpdateRunBench().IsLHAfter(L"FRA123LH0"));
}

TEST(UpdateRun, LHWithoutTheZeroBehindItDoesNotCount) {
  EXPECT_FALSE(UpdateRunBench().IsLHAfter(L"LHFRA0123"));
}

TEST(UpdateRun, LH0InLowerCaseDoesNotCount) {
  EXPECT_FALSE(UpdateRunBench().IsLHAfter(L"FRAlh0123"));
  EXPECT_FALSE(UpdateRunBench().IsLHAfter(L"FRALh0123"));
}

/// A desktop that fails when the run hides the dialog at its end.
template <typename Failure>
struct ViewFailingAtTheEnd : ui::WindowlessView {
  explicit ViewFailingAtTheEnd(Failure failsWith) : failure(std::move(failsWith)) {}
  void FormClosed(ui::Form&) override { throw failure; }

  Failure failure;
};

TEST(UpdateRun, AFailureOfItsOwnIsReportedAndEndsTheRun) {
  ViewFailingAtTheEnd view(common::RunTimeError(L"no window"));
  UpdateRunBench bench;
  bench.dialog.Shown(view);
  EXPECT_EQ(bench.RunThatFails().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221452, \"  PTA Script \", \"Error when "
            L"performing the updates!\", 16)");
}

TEST(UpdateRun, AFailureOfTheLibraryShowsTheLibrarysLastErrorAndEndsTheRun) {
  ViewFailingAtTheEnd view(hostlib::LibraryError(77, L"test", L"raised"));
  UpdateRunBench bench;
  bench.scripted.lastError.number = 77;
  bench.scripted.lastError.text = L"library broken";
  bench.dialog.Shown(view);
  EXPECT_EQ(bench.RunThatFails().back(),
            L"ScriptErrorReporter.1.12 ShowMessage(77, \"  PTA Script \", \"library broken\")");
}

}  // namespace
}  // namespace app
