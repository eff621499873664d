#pragma once

#include "tests/practice/LibraryBench.h"

namespace practice {

inline constexpr std::wstring_view kLibraryBooking =
    L"NM SMITH/JOHN MR\n"
    L"NM SMITH/ANNA MRS(INFSMITH/BABY)\n"
    L"SG SK OPEN Y ARN CPH\n"
    L"SG SK1423 Y 22MAR07 CPH ARN HK2\n"
    L"MCO SK,FM *C*10,FP CASH,FA 117-4012345678\n"
    L"MCO --\n"
    L"TK XL 10MAR07/1800/Q8\n"
    L"AP STO 08-1\n"
    L"AP STO 08-2\n"
    L"FS NET SEK800 SELL 1000 TOUR IT5SK1 [P1-2 S3]\n"
    L"FS SELL SEK100 [INF P2]\n"
    L"OP 16MAR07 CHECK\n"
    L"RM  PWCT REISSUE [P1 S3-4]\n"
    L"OS LH\n"
    L"OS SK PTA TEXT\n"
    L"TR LOCATOR ABC123\n";

struct LibraryObjects : testing::Test {
  LibraryObjects() : bench(kLibraryBooking) { bench.session.LoadPNR(); }

  /// The number and text of the failure; 0 when there was none.
  template <typename Body>
  std::pair<std::int32_t, std::wstring> Failure(Body body) {
    try {
      body();
    } catch (const hostlib::LibraryError& error) {
      EXPECT_EQ(bench.reporter.LastErrorNumber(), error.number());
      EXPECT_EQ(bench.reporter.LastErrorText(), error.description());
      return {error.number(), error.description()};
    }
    return {};
  }
  std::vector<std::wstring> Texts(const hostlib::ParameterBag& bag,
                                  std::initializer_list<common::Literal> keys) {
    std::vector<std::wstring> texts;
    for (const common::Literal key : keys) texts.push_back(bench.Text(bag, key));
    return texts;
  }
  std::wstring Build(const hostlib::Operation& execute,
                     std::initializer_list<LibraryBench::Input> content) {
    return hostlib::PnrElementBuilder(bench.library, execute).Execute(bench.Bag(content));
  }
  bool IsAccepted(const std::wstring& element) {
    const auto result = hostlib::PnrElementEntry(bench.library)
                            .ReadResponse(bench.session.SendCommand(element + L";"));
    return bench.Flag(result, L"blnKeyPNRFound");
  }

  LibraryBench bench;
};

inline std::int32_t Number(std::uint32_t number) { return static_cast<std::int32_t>(number); }

}  // namespace practice
