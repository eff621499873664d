#include <gtest/gtest.h>

#include "settings/OfficeIdentification.h"
#include "tests/support/RoomBench.h"

namespace settings {
namespace {

using Lines = std::vector<std::wstring>;
namespace store = hostlib::operations::user_settings_store;
namespace session = hostlib::operations::terminal_session;
namespace reader = hostlib::operations::office_display_reader;

const Lines kLooksUp = {
    L"UserSettingsStore.1.12 GetSetting(\"PTAStartup\", \"Values\", \"Date\", missing)",
    L"UserSettingsStore.1.12 GetSetting(\"PTAStartup\", \"Values\", \"OfficeID\", missing)"};

struct OfficeBench : support::RoomBench {
  OfficeBench() {
    scripted.On(store::kGetSetting, [this](const hostlib::Arguments& a) {
      return hostlib::Value(a[2].Text() == L"Date" ? storedDate : storedOffice);
    });
    scripted.On(store::kSaveSetting, [this](const hostlib::Arguments& a) {
      (a[2].Text() == L"Date" ? storedDate : storedOffice) = a[3].Text();
      return hostlib::Value();
    });
    scripted.Answer(session::kSessionText, L" A ");
    scripted.Answer(session::kSendCommand, L"THE PV ANSWER");
    scripted.On(reader::kReadResponse, [this](const hostlib::Arguments&) {
      return hostlib::Value(hostlib::ObjectPtr(scripted.Bag({{L"strKeyOfficeID", L"STOHOST00"}})));
    });
  }

  /// The calls with the answers of the store cut off.
  Lines TakeLookUps() {
    Lines calls = TakeCalls();
    for (std::wstring& call : calls) {
      const auto answer = call.find(L" -> ");
      if (call.starts_with(L"UserSettingsStore.1.12")) call.erase(answer);
    }
    return calls;
  }

  std::wstring storedDate;
  std::wstring storedOffice = L"ARNAG2100";
  IniFile ini{L"C:\\PTA\\PTA_QX.ini", L"before"};
  OfficeIdentification office{library, global, RoomBench::session, errors, scripted.platform,
                              desktop, ini};
};

TEST(IdentifyOffice, TodaysOfficeIsTakenWithoutAskingTheHost) {
  OfficeBench bench;
  bench.storedDate = L"2007-02-20";
  bench.office.IdentifyOffice();
  EXPECT_EQ(bench.TakeLookUps(), kLooksUp);
  EXPECT_EQ(bench.ini.officeSection, L"ARNAG2100");
  EXPECT_FALSE(bench.office.WasHostAsked());
}

TEST(IdentifyOffice, YesterdaysOfficeIsAskedOfTheHostAndKeptForToday) {
  OfficeBench bench;
  bench.storedDate = L"2007-02-19";
  bench.office.IdentifyOffice();
  Lines expected = kLooksUp;
  for (const wchar_t* call :
       {L"TerminalSession.1.16 SessionText() -> \" A \"",
        L"TerminalSession.1.10 SendCommand(\"PV\") -> \"THE PV ANSWER\"",
        L"OfficeDisplayReader.1.8 ReadResponse(\"THE PV ANSWER\") -> <ParameterBag>",
        L"ParameterBag.1.8 GetValue(\"strKeyOfficeID\") -> \"STOHOST00\"",
        L"ScriptGlobal.1.13 ToText(\"STOHOST00\") -> \"STOHOST00\"",
        L"UserSettingsStore.1.13 SaveSetting(\"PTAStartup\", \"Values\", \"OfficeID\", "
        L"\"STOHOST00\")",
        L"UserSettingsStore.1.13 SaveSetting(\"PTAStartup\", \"Values\", \"Date\", "
        L"\"2007-02-20\")"}) {
    expected.push_back(call);
  }
  EXPECT_EQ(bench.TakeLookUps(), expected);
  EXPECT_EQ(bench.ini.officeSection, L"STOHOST00");
  EXPECT_TRUE(bench.office.WasHostAsked());
}

TEST(IdentifyOffice, ASecondRunOnTheSameDayDoesNotAskAgain) {
  OfficeBench bench;
  bench.office.IdentifyOffice();
  OfficeIdentification second(bench.library, bench.global, bench.session, bench.errors,
                              bench.scripted.platform, bench.desktop, bench.ini);
  second.IdentifyOffice();
  EXPECT_FALSE(second.WasHostAsked());
  EXPECT_EQ(bench.ini.officeSection, L"STOHOST00");
}

TEST(IdentifyOffice, ADateThatIsNotTodaysTextAsksTheHost) {
  for (const wchar_t* date :
       {L"", L" ", L"nonsense", L"2007-02-20 ", L"20/02/2007", L"2007-02-21"}) {
    OfficeBench bench;
    bench.storedDate = date;
    bench.office.IdentifyOffice();
    EXPECT_TRUE(bench.office.WasHostAsked()) << date;
    EXPECT_EQ(bench.ini.officeSection, L"STOHOST00") << date;
  }
}

class NoDateForm : public support::FixedPlatform {
 public:
  std::wstring ShortDateText(std::chrono::year_month_day) const override { return {}; }
};

TEST(IdentifyOffice, AnEmptyDateIsNeverToday) {
  OfficeBench bench;
  const NoDateForm platform;
  OfficeIdentification office(bench.library, bench.global, bench.session, bench.errors, platform,
                              bench.desktop, bench.ini);
  office.IdentifyOffice();
  EXPECT_TRUE(office.WasHostAsked());
}

TEST(IdentifyOffice, AnEmptyOfficeOfTodayIsTaken) {
  OfficeBench bench;
  bench.storedDate = L"2007-02-20";
  bench.storedOffice = L"";
  bench.office.IdentifyOffice();
  EXPECT_FALSE(bench.office.WasHostAsked());
  EXPECT_EQ(bench.ini.officeSection, L"");
}

TEST(IdentifyOffice, TheStoredOfficeIsTheSectionBeforeTheHostIsAsked) {
  OfficeBench bench;
  std::wstring sectionWhenAsked;
  bench.scripted.On(session::kSendCommand, [&](const hostlib::Arguments&) {
    sectionWhenAsked = bench.ini.officeSection;
    return hostlib::Value(L"");
  });
  bench.office.IdentifyOffice();
  EXPECT_EQ(sectionWhenAsked, L"ARNAG2100");
}

TEST(IdentifyOffice, AStoreThatFailsIsReportedAndTheHostIsNotAsked) {
  OfficeBench bench;
  bench.scripted.Fail(store::kGetSetting, 5, L"no store");
  bench.office.IdentifyOffice();
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221464, \"  PTA Script \", \"Error when "
            L"searching for INI-file parameters\", 16)");
  EXPECT_FALSE(bench.office.WasHostAsked());
  EXPECT_EQ(bench.ini.officeSection, L"before");
  EXPECT_FALSE(bench.stop.isSet);
}

class FailingStep : public testing::TestWithParam<hostlib::Operation> {};

TEST_P(FailingStep, IsReportedAndLeavesTheStoredOfficeAsTheSection) {
  OfficeBench bench;
  bench.storedDate = L"2007-02-19";
  bench.scripted.Fail(GetParam(), 5, L"broken");
  bench.office.IdentifyOffice();
  EXPECT_EQ(bench.TakeCalls().back(),
            L"ScriptErrorReporter.1.18 ShowError(-2147221394, \"  PTA Script \", \"Error when "
            L"sending the PV transaction.\", 16)");
  EXPECT_EQ(bench.ini.officeSection, L"ARNAG2100");
  EXPECT_EQ(bench.storedDate, L"2007-02-19");
  EXPECT_TRUE(bench.office.WasHostAsked());
  EXPECT_FALSE(bench.stop.isSet);
}

INSTANTIATE_TEST_SUITE_P(Steps, FailingStep,
                         testing::Values(session::kSessionText, session::kSendCommand,
                                         reader::kReadResponse, store::kSaveSetting));

TEST(IdentifyOffice, ASessionWithoutATextIsAskedAgainUntilItHasOne) {
  OfficeBench bench;
  bench.scripted.Answers(session::kSessionText, {L"", L"  ", L"  READY "});
  bench.office.IdentifyOffice();
  EXPECT_EQ(bench.desktop.log, (Lines{L"pause 100", L"pause 100"}));
  EXPECT_EQ(bench.office.SessionText(), L"READY");
  EXPECT_EQ(bench.ini.officeSection, L"STOHOST00");
}

TEST(IdentifyOffice, ASessionThatNeverHasATextIsAskedFiftyTimesAndPVSentAnyway) {
  OfficeBench bench;
  int asked = 0;
  bench.scripted.On(session::kSessionText, [&](const hostlib::Arguments&) {
    ++asked;
    return hostlib::Value(L" ");
  });
  bench.office.IdentifyOffice();
  EXPECT_EQ(asked, 50);
  EXPECT_EQ(bench.desktop.log, Lines(49, L"pause 100"));
  EXPECT_EQ(bench.ini.officeSection, L"STOHOST00");
}

TEST(IdentifyOffice, AnAnswerWithoutAnOfficeIsAnEmptyOffice) {
  OfficeBench bench;
  bench.scripted.On(reader::kReadResponse, [&](const hostlib::Arguments&) {
    return hostlib::Value(hostlib::ObjectPtr(bench.scripted.Bag()));
  });
  bench.office.IdentifyOffice();
  EXPECT_EQ(bench.ini.officeSection, L"");
  EXPECT_EQ(bench.storedOffice, L"");
  EXPECT_EQ(bench.storedDate, L"2007-02-20");
}

}  // namespace
}  // namespace settings
