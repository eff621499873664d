#include <gtest/gtest.h>

#include "errors/Procedures.h"

// What the table of reports promises: the number and the style of each, and what becomes of the
// run. The words are tested where they are shown.
namespace errors {
namespace {

using namespace procedures;

struct Row {
  const char* name;
  const Procedure& procedure;
  int number;
  int style;
  Form form;
  After after;
};

void PrintTo(const Row& row, std::ostream* out) { *out << row.name; }

constexpr auto kOwn = Form::kShowError;
constexpr auto kLast = Form::kReportLastOrError;

const Row kRows[] = {
    {"kMain", kMain, 51, 16, Form::kShowMessage, After::kEndsRun},
    {"kUpdateRun", kUpdateRun, 52, 16, Form::kShowErrorOrLast, After::kEndsRun},
    {"kConnect", kConnect, 99, 16, kOwn, After::kGoesOn},
    {"kSendQETrans", kSendQETrans, 80, 16, kOwn, After::kGoesOn},
    {"kIniFileMissing", kIniFileMissing, 10, 48, kOwn, After::kGoesOn},
    {"kLocateIniFile", kLocateIniFile, 10, 16, kOwn, After::kGoesOn},
    {"kReadSettings", kReadSettings, 29, 16, kOwn, After::kGoesOn},
    {"kWriteSettings", kWriteSettings, 28, 16, kOwn, After::kGoesOn},
    {"kFindOffice", kFindOffice, 40, 16, kOwn, After::kGoesOn},
    {"kSendPV", kSendPV, 110, 16, kOwn, After::kGoesOn},
    {"kTotalFare", kTotalFare, 20, 16, kOwn, After::kStopsRun},
    {"kAddTSTValues", kAddTSTValues, 21, 16, kOwn, After::kStopsRun},
    {"kPTATotalRemark", kPTATotalRemark, 23, 16, kOwn, After::kStopsRun},
    {"kMultiplyTSTValues", kMultiplyTSTValues, 25, 16, kOwn, After::kStopsRun},
    {"kMultiplyAmount", kMultiplyAmount, 26, 16, kOwn, After::kStopsRun},
    {"kAddDay", kAddDay, 27, 16, kOwn, After::kGoesOn},
    {"kRetrievePNR", kRetrievePNR, 36, 48, kLast, After::kStopsRun},
    {"kPNRInformation", kPNRInformation, 30, 16, kLast, After::kStopsRun},
    {"kRecordLocatorMissing", kRecordLocatorMissing, 30, 48, kOwn, After::kStopsRun},
    {"kMandatoryMissing", kMandatoryMissing, 37, 48, kOwn, After::kStopsRun},
    {"kTKMissing", kTKMissing, 30, 48, kOwn, After::kStopsRun},
    {"kNames", kNames, 31, 16, kLast, After::kStopsRun},
    {"kPWCT", kPWCT, 32, 16, kLast, After::kGoesOn},
    {"kFareElement", kFareElement, 33, 16, kLast, After::kGoesOn},
    {"kOption", kOption, 34, 16, kLast, After::kGoesOn},
    {"kOSI", kOSI, 112, 16, kLast, After::kGoesOn},
    {"kMCOInfo", kMCOInfo, 90, 16, kLast, After::kStopsRun},
    {"kAirlineNotValid", kAirlineNotValid, 38, 48, kOwn, After::kStopsRun},
    {"kTQM", kTQM, 110, 16, kLast, After::kGoesOn},
    {"kTQMRefused", kTQMRefused, 110, 16, kOwn, After::kGoesOn},
    {"kNoMCOFee", kNoMCOFee, 110, 16, kOwn, After::kGoesOn},
    {"kSelectMCO", kSelectMCO, 110, 16, kLast, After::kGoesOn},
    {"kCountMCOElements", kCountMCOElements, 36, 16, kLast, After::kStopsRun},
    {"kReadTSTList", kReadTSTList, 41, 16, kOwn, After::kStopsRun},
    {"kNoActiveTST", kNoActiveTST, 41, 48, kOwn, After::kStopsRun},
    {"kSendTQT", kSendTQT, 41, 16, kOwn, After::kGoesOn},
    {"kSendTQTP", kSendTQTP, 41, 16, kOwn, After::kGoesOn},
    {"kSelectTST", kSelectTST, 41, 16, kOwn, After::kStopsRun},
    {"kReadTSTDetail", kReadTSTDetail, 41, 16, kOwn, After::kStopsRun},
    {"kReadCurrentTST", kReadCurrentTST, 41, 16, kOwn, After::kStopsRun},
    {"kUpdateTST", kUpdateTST, 40, 16, kOwn, After::kGoesOn},
    {"kFormInit", kFormInit, 53, 16, kOwn, After::kGoesOn},
    {"kFormDisplay", kFormDisplay, 54, 16, kOwn, After::kGoesOn},
    {"kOkClicked", kOkClicked, 55, 16, kOwn, After::kGoesOn},
    {"kVerifyWindowFields", kVerifyWindowFields, 56, 16, kOwn, After::kGoesOn},
    {"kUpdatePNR", kUpdatePNR, 60, 16, kOwn, After::kEndsRun},
    {"kUpdateTK", kUpdateTK, 61, 16, kOwn, After::kEndsRun},
    {"kUpdateFP", kUpdateFP, 62, 16, kOwn, After::kEndsRun},
    {"kUpdateFV", kUpdateFV, 63, 16, kOwn, After::kEndsRun},
    {"kUpdateRMPWCT", kUpdateRMPWCT, 64, 16, kOwn, After::kEndsRun},
    {"kUpdateFM", kUpdateFM, 65, 16, kOwn, After::kEndsRun},
    {"kEnterPNRElements", kEnterPNRElements, 70, 16, kOwn, After::kEndsRun},
    {"kCreateFO", kCreateFO, 71, 16, kOwn, After::kEndsRun},
    {"kCreateFV", kCreateFV, 72, 16, kOwn, After::kEndsRun},
    {"kCreateFP", kCreateFP, 73, 16, kOwn, After::kEndsRun},
    {"kCreateFM", kCreateFM, 74, 16, kOwn, After::kEndsRun},
    {"kCreateRM", kCreateRM, 75, 16, kOwn, After::kEndsRun},
    {"kCreateOP", kCreateOP, 76, 16, kOwn, After::kEndsRun},
    {"kDivideRM", kDivideRM, 77, 16, kOwn, After::kEndsRun},
    {"kCreateRMStar", kCreateRMStar, 78, 16, kOwn, After::kGoesOn},
    {"kPrintPNR", kPrintPNR, 81, 16, kOwn, After::kGoesOn},
    {"kSendBT", kSendBT, 82, 16, kOwn, After::kGoesOn},
};

class ReportTable : public testing::TestWithParam<Row> {};

TEST_P(ReportTable, HasItsNumberItsStyleAndWhatFollows) {
  const Row& row = GetParam();
  EXPECT_EQ(row.procedure.number, row.number);
  EXPECT_EQ(row.procedure.style, row.style);
  EXPECT_EQ(row.procedure.form, row.form);
  EXPECT_EQ(row.procedure.after, row.after);
}

INSTANTIATE_TEST_SUITE_P(Procedures, ReportTable, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Procedures, ReportsThatOnlyAnUnforeseenFailureShowsHaveTheirWords) {
  EXPECT_EQ(kUpdateRun.text, L"Error when performing the updates!");
  EXPECT_EQ(kMultiplyTSTValues.text, L"Error multiply values!");
}

TEST(Procedures, OnlyTheDisplayOfTheTSMsDescribesItsFailure) {
  for (const Row& row : kRows) {
    EXPECT_EQ(row.procedure.describes, std::string_view(row.name) == "kTQM") << row.name;
  }
}

}  // namespace
}  // namespace errors
