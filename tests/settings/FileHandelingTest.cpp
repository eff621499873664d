#include <gtest/gtest.h>

#include "settings/FileHandeling.h"
#include "settings/OfficeProfile.h"
#include "tests/support/RoomBench.h"

namespace settings {
namespace {

using Lines = std::vector<std::wstring>;

struct FileBench : support::RoomBench {
  FileBench() {
    scripted.platform.files = {L"C:\\PTA\\PTA_QX.ini", L"C:\\PTA_QX.ini"};
    scripted.On(hostlib::operations::user_settings_store::kGetSetting,
                [](const hostlib::Arguments& a) {
                  return hostlib::Value(a[2].Text() == L"Date" ? L"2007-02-20" : L"ARNAG2100");
                });
  }

  IniFile ini;
  OfficeIdentification office{library, global, session, errors, scripted.platform, desktop, ini};
  FileHandeling handeling{scripted.platform, errors, ini, office};
};

TEST(LocateIniFile, TheFileLiesInTheProgramsFolder) {
  FileBench bench;
  bench.handeling.LocateIniFile();
  EXPECT_EQ(bench.ini.path, L"C:\\PTA\\PTA_QX.ini");
  EXPECT_EQ(bench.ini.officeSection, L"ARNAG2100");
  EXPECT_EQ(bench.TakeCalls().size(), 2u) << "the two stored values, and no report";
}

TEST(LocateIniFile, AFolderThatEndsInABackslashGetsNoSecondOne) {
  FileBench bench;
  bench.scripted.platform.folder = L"C:\\";
  bench.handeling.LocateIniFile();
  EXPECT_EQ(bench.ini.path, L"C:\\PTA_QX.ini");
  EXPECT_EQ(bench.TakeCalls().size(), 2u);
}

TEST(LocateIniFile, AMissingFileIsReportedAndTheOfficeIdentifiedAllTheSame) {
  FileBench bench;
  bench.scripted.platform.files.clear();
  bench.handeling.LocateIniFile();
  const Lines calls = bench.TakeCalls();
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[0],
            L"ScriptErrorReporter.1.18 ShowError(-2147221494, \"  PTA Script \", \"The ini file "
            L"does not exist! \rContact Help Desk.\", 48)");
  EXPECT_EQ(bench.ini.path, L"C:\\PTA\\PTA_QX.ini");
  EXPECT_EQ(bench.ini.officeSection, L"ARNAG2100");
  EXPECT_FALSE(bench.stop.isSet);
}

class NoFolder : public support::FixedPlatform {
 public:
  std::wstring ProgramFolder() const override { throw common::RunTimeError(L"no folder"); }
};

TEST(LocateIniFile, AFailureIsReportedUnderTheSameNumber) {
  FileBench bench;
  const NoFolder platform;
  FileHandeling(platform, bench.errors, bench.ini, bench.office).LocateIniFile();
  EXPECT_EQ(bench.TakeCalls(),
            Lines{L"ScriptErrorReporter.1.18 ShowError(-2147221494, \"  PTA Script \", \"Error "
                  L"when getting the ini file!\", 16)"});
}

TEST(OfficeProfile, TheFixedSectionIsAskedOnlyForWhatTheOfficesSectionDoesNotHold) {
  FileBench bench;
  bench.scripted.Answers(hostlib::operations::profile_store::kReadValue,
                         {L"XXXSK08AA", L"", L"80"});
  bench.ini = {L"C:\\PTA\\PTA_QX.ini", L"ARNAG2100"};
  const OfficeProfile profile(bench.library, bench.ini);
  EXPECT_EQ(profile.Read(L"OfficeIDSK", L"OfficeID", L"SK"), L"XXXSK08AA");
  EXPECT_EQ(profile.Read(L"QueNumberSK", L"QueNumber", L"SK"), L"80");
  EXPECT_EQ(bench.TakeCalls(),
            (Lines{L"ProfileStore.1.9 ReadValue(\"C:\\PTA\\PTA_QX.ini\", \"ARNAG2100\", "
                   L"\"OfficeIDSK\") -> \"XXXSK08AA\"",
                   L"ProfileStore.1.9 ReadValue(\"C:\\PTA\\PTA_QX.ini\", \"ARNAG2100\", "
                   L"\"QueNumberSK\") -> \"\"",
                   L"ProfileStore.1.9 ReadValue(\"C:\\PTA\\PTA_QX.ini\", \"QueNumber\", "
                   L"\"SK\") -> \"80\""}));
}

}  // namespace
}  // namespace settings
