#ifdef _WIN32

#include <gtest/gtest.h>
#include <windows.h>

#include "platform/win32/WindowsPlatform.h"
#include "practice/library/win32/RegistryUserValues.h"
#include "practice/library/win32/WindowsProfiles.h"
#include "settings/OfficeIdentification.h"
#include "tests/settings/SettingsBench.h"
#include "tests/settings/TemporaryFolder.h"

namespace settings {
namespace {

using Lines = std::vector<std::wstring>;

TEST(WindowsProfiles, SwedishLettersAreInTheUsersCodePage) {
  if (::GetACP() != 1252) GTEST_SKIP() << "the code page is " << ::GetACP();
  TemporaryFolder folder;
  practice::WindowsProfiles store;
  const std::wstring path = folder.Path(L"PTA_QX.ini");
  folder.Put(L"PTA_QX.ini", "[Malm\xF6]\r\n\r\nOPText=\xC5\xC4\xD6\r\nCityCode=STO\r\n");
  EXPECT_EQ(store.Read(path, L"Malm\u00F6", L"OPText"), L"\u00C5\u00C4\u00D6");
  EXPECT_TRUE(store.Write(path, L"Malm\u00F6", L"CityCode", L"G\u00D6T"));
  EXPECT_EQ(store.Read(path, L"Malm\u00F6", L"CityCode"), L"G\u00D6T");
  EXPECT_EQ(folder.Bytes(L"PTA_QX.ini"),
            "[Malm\xF6]\r\n\r\nOPText=\xC5\xC4\xD6\r\nCityCode=G\xD6T\r\n");
  EXPECT_FALSE(store.Write(path, L"Malm\u00F6", L"CityCode", L"\u0416")) << "no such letter there";
}

TEST(WindowsProfiles, WhatIsWrittenIsWhatTheSystemReads) {
  TemporaryFolder folder;
  practice::WindowsProfiles store;
  const std::wstring path = folder.Path(L"PTA_QX.ini");
  EXPECT_TRUE(store.Write(path, L"ARNAG2100", L"CityCode", L"STO"));
  EXPECT_EQ(store.Read(path, L"ARNAG2100", L"CityCode"), L"STO");
  EXPECT_TRUE(store.Write(path, L"ARNAG2100", L"CityCode", L"GOT"));
  wchar_t value[16];
  ::GetPrivateProfileStringW(L"ARNAG2100", L"CityCode", L"", value, 16, path.c_str());
  EXPECT_STREQ(value, L"GOT");
}

/// The file as another program has it open: nobody else may write, or even read.
class HeldOpen {
 public:
  HeldOpen(const std::wstring& path, DWORD sharedWithOthers)
      : handle_(::CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, sharedWithOthers, nullptr,
                              OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr)) {
    EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
  }
  ~HeldOpen() { ::CloseHandle(handle_); }
  HeldOpen(const HeldOpen&) = delete;
  HeldOpen& operator=(const HeldOpen&) = delete;

 private:
  HANDLE handle_;
};

TEST(WindowsProfiles, AFileThatAnotherProgramIsWritingStaysAsThatProgramLeavesIt) {
  const std::string bytes = "[ARNAG2100]\r\n\r\nCityCode=STO\r\n";
  for (const DWORD shared : {DWORD{0}, DWORD{FILE_SHARE_READ}}) {
    TemporaryFolder folder;
    practice::WindowsProfiles store;
    const std::wstring path = folder.Path(L"PTA_QX.ini");
    folder.Put(L"PTA_QX.ini", bytes);
    {
      const HeldOpen other(path, shared);
      EXPECT_FALSE(store.Write(path, L"ARNAG2100", L"CityCode", L"GOT"));
      EXPECT_EQ(store.Read(path, L"ARNAG2100", L"CityCode"), shared == 0 ? L"" : L"STO");
    }
    EXPECT_EQ(folder.Bytes(L"PTA_QX.ini"), bytes);
    EXPECT_EQ(folder.Count(), 1);
    EXPECT_TRUE(store.Write(path, L"ARNAG2100", L"CityCode", L"GOT"));
    EXPECT_EQ(store.Read(path, L"ARNAG2100", L"CityCode"), L"GOT");
  }
}

/// Values under a root of the test's own, gone afterwards.
class RegistryTest : public testing::Test {
 protected:
  ~RegistryTest() override { ::RegDeleteTreeW(HKEY_CURRENT_USER, root_.c_str()); }

  std::wstring root_ = L"Software\\VantelPracticeTest" + std::to_wstring(::GetCurrentProcessId());
  practice::RegistryUserValues values_{root_};
};

TEST_F(RegistryTest, AValueThatWasNeverSavedIsEmpty) {
  EXPECT_EQ(values_.Get(L"PTAStartup", L"Values", L"OfficeID"), L"");
}

TEST_F(RegistryTest, WhatIsSavedIsThereForTheNextRun) {
  for (const std::wstring& value :
       {std::wstring(L"ARNAG2100"), std::wstring(L""), std::wstring(L"\u00C5\u00C4\u00D6 \u0416"),
        std::wstring(127, L'X'), std::wstring(128, L'X'), std::wstring(2000, L'X')}) {
    values_.Save(L"PTAStartup", L"Values", L"OfficeID", value);
    practice::RegistryUserValues next(root_);
    EXPECT_EQ(next.Get(L"PTAStartup", L"Values", L"OfficeID"), value);
  }
  EXPECT_EQ(values_.Get(L"PTAStartup", L"Other", L"OfficeID"), L"");
  EXPECT_EQ(values_.Get(L"Other", L"Values", L"OfficeID"), L"");
}

TEST_F(RegistryTest, AValueOfAnotherKindCountsAsMissing) {
  const DWORD number = 7;
  ::RegSetKeyValueW(HKEY_CURRENT_USER, (root_ + L"\\PTAStartup\\Values").c_str(), L"Date",
                    REG_DWORD, &number, sizeof number);
  EXPECT_EQ(values_.Get(L"PTAStartup", L"Values", L"Date"), L"");
}

/// The office over the real registry, the real date and the user's own short date form.
class OfficeInTheRegistry : public RegistryTest {
 protected:
  OfficeInTheRegistry() {
    namespace operations = hostlib::operations;
    bench_.scripted.On(operations::user_settings_store::kGetSetting,
                       [this](const hostlib::Arguments& a) {
                         return hostlib::Value(values_.Get(a[0].Text(), a[1].Text(), a[2].Text()));
                       });
    bench_.scripted.On(operations::user_settings_store::kSaveSetting,
                       [this](const hostlib::Arguments& a) {
                         values_.Save(a[0].Text(), a[1].Text(), a[2].Text(), a[3].Text());
                         return hostlib::Value();
                       });
    bench_.scripted.Answer(operations::terminal_session::kSessionText, L"A");
    bench_.scripted.Answer(operations::terminal_session::kSendCommand, L"");
    bench_.scripted.On(
        operations::office_display_reader::kReadResponse, [this](const hostlib::Arguments&) {
          return hostlib::Value(
              hostlib::ObjectPtr(bench_.scripted.Bag({{L"strKeyOfficeID", L"STOHOST00"}})));
        });
    values_.Save(L"PTAStartup", L"Values", L"OfficeID", L"ARNAG2100");
  }

  void StoreDate(const std::wstring& date) {
    values_.Save(L"PTAStartup", L"Values", L"Date", date);
  }
  std::wstring DayText(int daysFromToday) const {
    const auto day = std::chrono::sys_days(platform_.Today()) + std::chrono::days(daysFromToday);
    return platform_.ShortDateText(day);
  }
  bool IsHostAsked() {
    OfficeIdentification office(bench_.library, bench_.global, bench_.session, bench_.errors,
                                platform_, bench_.desktop, ini_);
    office.IdentifyOffice();
    return office.WasHostAsked();
  }

  platform::WindowsPlatform platform_;
  support::RoomBench bench_;
  IniFile ini_;
};

TEST_F(OfficeInTheRegistry, TodaysOfficeIsTaken) {
  StoreDate(DayText(0));
  EXPECT_FALSE(IsHostAsked());
  EXPECT_EQ(ini_.officeSection, L"ARNAG2100");
}

TEST_F(OfficeInTheRegistry, AnyOtherDateAsksTheHostOnce) {
  for (const std::wstring& date :
       {DayText(-1), DayText(1), std::wstring(), std::wstring(L"nonsense")}) {
    StoreDate(date);
    EXPECT_TRUE(IsHostAsked()) << date;
    EXPECT_EQ(ini_.officeSection, L"STOHOST00");
    EXPECT_FALSE(IsHostAsked()) << "asked once a day";
  }
}

TEST(SettingsOnDisk, AreReadChangedAndReadAgainThroughTheSystemsFiles) {
  TemporaryFolder folder;
  folder.Put(L"PTA_QX.ini",
             "[ARNAG2100]\r\n\r\nIATANumber=80246878\r\nCityCode=\r\nPrintPNR=Yes\r\n"
             "[Settings]\r\nCityCode=STO\r\n");
  practice::WindowsProfiles store;
  SettingsBench bench;
  bench.ini.path = folder.Path(L"PTA_QX.ini");
  namespace profile = hostlib::operations::profile_store;
  bench.scripted.On(profile::kReadValue, [&](const hostlib::Arguments& a) {
    return hostlib::Value(store.Read(a[0].Text(), a[1].Text(), a[2].Text()));
  });
  bench.scripted.On(profile::kWriteValue, [&](const hostlib::Arguments& a) {
    EXPECT_TRUE(store.Write(a[0].Text(), a[1].Text(), a[2].Text(), a[3].Text()));
    return hostlib::Value();
  });
  bench.file.ReadSettings();
  EXPECT_EQ(bench.record.strCityCode, L"STO");
  EXPECT_TRUE(bench.form.chkPrintPNR.Value());
  bench.form.txtCityCode.TextTyped(L"GOT");
  bench.form.chkPrintPNR.Clicked(false);
  bench.file.WriteSettings();
  EXPECT_EQ(folder.Bytes(L"PTA_QX.ini"),
            "[ARNAG2100]\r\n\r\nIATANumber=80246878\r\nCityCode=GOT\r\nPrintPNR=No\r\n"
            "[Settings]\r\nCityCode=STO\r\n");
}

}  // namespace
}  // namespace settings

#endif
