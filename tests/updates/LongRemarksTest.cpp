#include "tests/updates/EnteringBench.h"

namespace updates {
namespace {

using namespace hostlib::operations;

struct RemarkSource {
  const char* name;
  void (*set)(EnteringBench&, std::size_t length);
};

/// What the program asks for here never gets so long; what the builder makes of it may.
void LengthenMoneyRemark(EnteringBench& bench, std::size_t length) {
  bench.scripted.On(pnr_element_builder::kExecuteRM, [length](const hostlib::Arguments& arguments) {
    std::wstring element = L"RM " + EnteringBench::TextIn(arguments, L"strKeyText");
    if (element.starts_with(L"RM *FARE")) element.resize(length, L'X');
    return hostlib::Value(element);
  });
}

/// Each kind of remark, made so that the builder's text has a given length.
class EveryRemark : public testing::TestWithParam<RemarkSource> {};

TEST_P(EveryRemark, Of124CharactersIsNotDivided) {
  EnteringBench bench;
  GetParam().set(bench, 124);
  bench.creation.EnterPNRElements(true, L"FRALH0123");
  EXPECT_EQ(bench.CallsOf(L"RemarkDivider"), Lines{});
}

TEST_P(EveryRemark, Of125CharactersIsDividedAndOnlyItsPiecesAreSent) {
  EnteringBench bench;
  GetParam().set(bench, 125);
  bench.scripted.Answer(remark_divider::kDivide, hostlib::TextArray{{L"RM ONE", L"RM TWO"}});
  const Lines elements = bench.Entered(true, L"FRALH0123");
  ASSERT_EQ(bench.CallsOf(L"RemarkDivider").size(), 1u);
  const auto first = std::find(elements.begin(), elements.end(), L"RM ONE");
  ASSERT_NE(first, elements.end());
  EXPECT_EQ(*(first + 1), L"RM TWO");
  for (const std::wstring& element : elements) EXPECT_LT(element.size(), 125u);
}

// The builder puts "RM " in front.
INSTANTIATE_TEST_SUITE_P(LongRemarks, EveryRemark,
                         testing::Values(RemarkSource{"PWCT",
                                                      [](EnteringBench& bench, std::size_t length) {
                                                        bench.pnr.strRMPWCTAction =
                                                            std::wstring(length - 8, L'X');
                                                      }},
                                         RemarkSource{"Info",
                                                      [](EnteringBench& bench, std::size_t length) {
                                                        bench.pnr.strRMBODInfo =
                                                            std::wstring(length - 4, L'X');
                                                      }},
                                         RemarkSource{"Total",
                                                      [](EnteringBench& bench, std::size_t length) {
                                                        bench.pnr.strRMPTATotal =
                                                            std::wstring(length - 11, L'X');
                                                      }},
                                         RemarkSource{"Acknowledgement",
                                                      [](EnteringBench& bench, std::size_t length) {
                                                        bench.pnr.blnLH = true;
                                                        bench.pnr.strResponsibleOffice =
                                                            std::wstring(length - 33, L'X');
                                                      }},
                                         RemarkSource{"Money", LengthenMoneyRemark}),
                         [](const auto& one) { return std::string(one.param.name); });

TEST(LongRemarks, TheLengthToDivideIsThatOfTheBuildersTextNotOfWhatItWasGiven) {
  EnteringBench bench;
  bench.pnr.strRMBODInfo = std::wstring(200, L'X');
  bench.scripted.Answer(pnr_element_builder::kExecuteRM, L"RM SHORT");
  bench.creation.EnterPNRElements(false, L"");
  EXPECT_EQ(bench.CallsOf(L"RemarkDivider"), Lines{});
}

TEST(LongRemarks, ALongElementThatIsNoRemarkIsNotDivided) {
  EnteringBench bench;
  bench.scripted.Answer(pnr_element_builder::kExecuteFO, std::wstring(130, L'F'));
  EXPECT_EQ(bench.Entered().front(), std::wstring(130, L'F'));
  EXPECT_EQ(bench.CallsOf(L"RemarkDivider"), Lines{});
}

TEST(LongRemarks, ADividedRemarkStaysTogetherInOneEntry) {
  EnteringBench bench;
  bench.pnr.strRMBODInfo = std::wstring(200, L'X');
  bench.scripted.Answer(remark_divider::kDivide,
                        hostlib::TextArray{{std::wstring(120, L'A'), std::wstring(110, L'B')}});
  bench.creation.EnterPNRElements(false, L"");
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"),
            (Lines{L"TerminalSession.1.10 SendCommand(\"FO p2 s1;\") -> \"LONG ANSWER\"",
                   L"TerminalSession.1.10 SendCommand(\"" + std::wstring(120, L'A') + L";" +
                       std::wstring(110, L'B') + L";\") -> \"LONG ANSWER\"",
                   L"TerminalSession.1.10 SendCommand(\"RM PTA TTL SEK1000;RM *FARE:1000;\") -> "
                   L"\"LONG ANSWER\""}));
}

TEST(LongRemarks, ADivisionThatFailsEndsTheRunBeforeAnythingIsSent) {
  EnteringBench bench;
  bench.pnr.strRMBODInfo = std::wstring(200, L'X');
  bench.scripted.Fail(remark_divider::kDivide, 77, L"library broken");
  EXPECT_THROW(bench.creation.EnterPNRElements(false, L""), support::EndedByEndScript);
  EXPECT_EQ(bench.CallsOf(L"ScriptErrorReporter"),
            Lines{Box(77, L"Error when deviding an RM string!", 16)});
  EXPECT_EQ(bench.CallsOf(L"TerminalSession"), Lines{});
}

}  // namespace
}  // namespace updates
