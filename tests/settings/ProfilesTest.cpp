#include <gtest/gtest.h>

#include "practice/library/IniProfiles.h"
#include "tests/settings/TemporaryFolder.h"

#ifdef _WIN32
#include "practice/library/win32/WindowsProfiles.h"
#endif

// Real files on the disk, through every store of INI files that this system has.
namespace practice {
namespace {

const std::string kAgencysFile =
    "; the agency's own words\r\n"
    "\r\n"
    "[Settings]\r\n"
    "CityCode = STO\r\n"
    "\r\n"
    "\r\n"
    "[ARNAG2100]\r\n"
    "IATANumber=80246878\r\n"
    "OPText=\"  CHECK IF TICKET OK \"\r\n"
    "Quoted='single'\r\n"
    "Half=\"half\r\n"
    "Empty=\r\n"
    "Blanks =   XXXSK08AA   \r\n"
    ";IATANumber=11111111\r\n"
    "\r\n"
    "[OfficeID]\r\n"
    "SK=XXXSK08AA\r\n";

template <typename Store>
class ProfilesOnDisk : public testing::Test {
 protected:
  std::wstring Read(std::wstring_view section, std::wstring_view key) {
    return store_.Read(path_, section, key);
  }
  bool Write(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
    return store_.Write(path_, section, key, value);
  }
  void Put(std::string_view bytes) { folder_.Put(L"PTA_QX.ini", bytes); }
  std::string Bytes() const { return folder_.Bytes(L"PTA_QX.ini"); }
  /// The file with one text of it replaced by another.
  static std::string Changed(std::string text, const std::string& from, const std::string& to) {
    return text.replace(text.find(from), from.size(), to);
  }

  settings::TemporaryFolder folder_;
  std::wstring path_ = folder_.Path(L"PTA_QX.ini");
  Store store_;
};

#ifdef _WIN32
using Stores = testing::Types<IniProfiles, WindowsProfiles>;
#else
using Stores = testing::Types<IniProfiles>;
#endif
TYPED_TEST_SUITE(ProfilesOnDisk, Stores);

TYPED_TEST(ProfilesOnDisk, AMissingFileSectionOrKeyIsEmpty) {
  EXPECT_EQ(this->Read(L"ARNAG2100", L"IATANumber"), L"");
  this->Put(kAgencysFile);
  EXPECT_EQ(this->Read(L"STOAG0000", L"IATANumber"), L"");
  EXPECT_EQ(this->Read(L"ARNAG2100", L"CityCode"), L"");
  EXPECT_EQ(this->Read(L"ARNAG2100", L"Empty"), L"");
  EXPECT_EQ(this->Read(L"", L"IATANumber"), L"");
  EXPECT_EQ(this->Read(L"ARNAG2100", L""), L"");
}

TYPED_TEST(ProfilesOnDisk, NamesAreFoundWithoutRegardToCase) {
  this->Put(kAgencysFile);
  EXPECT_EQ(this->Read(L"ARNAG2100", L"IATANumber"), L"80246878");
  EXPECT_EQ(this->Read(L"arnag2100", L"iatanumber"), L"80246878");
}

TYPED_TEST(ProfilesOnDisk, BlanksAroundAValueDoNotCountAndOnePairOfQuotesKeepsThem) {
  this->Put(kAgencysFile);
  EXPECT_EQ(this->Read(L"Settings", L"CityCode"), L"STO");
  EXPECT_EQ(this->Read(L"ARNAG2100", L"Blanks"), L"XXXSK08AA");
  EXPECT_EQ(this->Read(L"ARNAG2100", L"OPText"), L"  CHECK IF TICKET OK ");
  EXPECT_EQ(this->Read(L"ARNAG2100", L"Quoted"), L"single");
  EXPECT_EQ(this->Read(L"ARNAG2100", L"Half"), L"\"half");
}

TYPED_TEST(ProfilesOnDisk, ALongValueIsReadAndWrittenWhole) {
  for (const std::size_t length : {254u, 255u, 256u, 257u, 2000u, 20000u}) {
    const std::wstring value(length, L'X');
    this->Put(kAgencysFile);
    EXPECT_TRUE(this->Write(L"ARNAG2100", L"OPText", value));
    EXPECT_EQ(this->Read(L"ARNAG2100", L"OPText"), value) << length;
  }
}

TYPED_TEST(ProfilesOnDisk, AWriteChangesTheBytesOfItsKeyAlone) {
  this->Put(kAgencysFile);
  EXPECT_TRUE(this->Write(L"ARNAG2100", L"IATANumber", L"11111111"));
  EXPECT_EQ(this->Bytes(),
            this->Changed(kAgencysFile, "IATANumber=80246878", "IATANumber=11111111"));
  EXPECT_EQ(this->Read(L"ARNAG2100", L"IATANumber"), L"11111111");
}

TYPED_TEST(ProfilesOnDisk, ANewKeyGoesToTheEndOfItsSection) {
  this->Put(kAgencysFile);
  EXPECT_TRUE(this->Write(L"ARNAG2100", L"CityCode", L"GOT"));
  EXPECT_EQ(this->Bytes(), this->Changed(kAgencysFile, ";IATANumber=11111111\r\n",
                                         ";IATANumber=11111111\r\nCityCode=GOT\r\n"));
  EXPECT_EQ(this->Read(L"Settings", L"CityCode"), L"STO");
}

TYPED_TEST(ProfilesOnDisk, ANewSectionGoesToTheEndOfTheFile) {
  this->Put(kAgencysFile);
  EXPECT_TRUE(this->Write(L"STOAG0000", L"CityCode", L"STO"));
  EXPECT_EQ(this->Bytes(), kAgencysFile + "[STOAG0000]\r\nCityCode=STO\r\n");
}

TYPED_TEST(ProfilesOnDisk, AMissingFileIsMadeAndALastLineIsClosedFirst) {
  EXPECT_TRUE(this->Write(L"A", L"B", L"C"));
  EXPECT_EQ(this->Bytes(), "[A]\r\nB=C\r\n");
  this->Put("[A]\r\nB=C");
  EXPECT_TRUE(this->Write(L"A", L"D", L"E"));
  EXPECT_EQ(this->Read(L"A", L"B"), L"C");
  EXPECT_EQ(this->Read(L"A", L"D"), L"E");
}

TYPED_TEST(ProfilesOnDisk, WhatIsWrittenIsReadAgain) {
  for (const wchar_t* value : {L"", L" ", L" leading", L"trailing ", L"\"quoted\"", L"'quoted'",
                               L"\"", L"a=b", L";no comment", L"[no section]", L"Yes", L"\"half"}) {
    this->Put(kAgencysFile);
    EXPECT_TRUE(this->Write(L"ARNAG2100", L"OPText", value)) << value;
    EXPECT_EQ(this->Read(L"ARNAG2100", L"OPText"), value);
  }
}

TYPED_TEST(ProfilesOnDisk, WhatCannotStandInAFileIsRefused) {
  this->Put(kAgencysFile);
  EXPECT_FALSE(this->Write(L"ARNAG2100", L"OPText", L"two\rlines"));
  EXPECT_FALSE(this->Write(L"ARNAG2100", L"OPText", L"two\nlines"));
  EXPECT_FALSE(this->Write(L"ARNAG2100", L"OPText", std::wstring(L"a\0b", 3)));
  EXPECT_FALSE(this->Write(L"", L"OPText", L"X"));
  EXPECT_FALSE(this->Write(L"ARNAG2100", L"", L"X"));
  EXPECT_FALSE(this->Write(L"A]B", L"OPText", L"X"));
  EXPECT_FALSE(this->Write(L"ARNAG2100", L"A=B", L"X"));
  EXPECT_FALSE(this->Write(L"ARNAG2100", L";A", L"X"));
  EXPECT_EQ(this->Bytes(), kAgencysFile);
}

TYPED_TEST(ProfilesOnDisk, AReadOnlyFileIsReadAndNotWritten) {
  this->Put(kAgencysFile);
  this->folder_.MakeReadOnly(L"PTA_QX.ini");
  EXPECT_FALSE(this->Write(L"ARNAG2100", L"IATANumber", L"11111111"));
  EXPECT_EQ(this->Bytes(), kAgencysFile);
  EXPECT_EQ(this->Read(L"ARNAG2100", L"IATANumber"), L"80246878");
}

TYPED_TEST(ProfilesOnDisk, NothingElseIsLeftInTheFolder) {
  this->Put(kAgencysFile);
  this->Write(L"ARNAG2100", L"IATANumber", L"11111111");
  EXPECT_EQ(this->folder_.Count(), 1);
}

TYPED_TEST(ProfilesOnDisk, AFolderThatIsNotThereIsNotMade) {
  const std::wstring path = this->folder_.Path(L"none\\PTA_QX.ini");
  EXPECT_EQ(this->store_.Read(path, L"A", L"B"), L"");
  EXPECT_FALSE(this->store_.Write(path, L"A", L"B", L"C"));
  EXPECT_EQ(this->folder_.Count(), 0);
}

TYPED_TEST(ProfilesOnDisk, AFileInUtf16KeepsEveryLetter) {
  const auto utf16 = [](std::u16string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
      bytes += static_cast<char>(unit & 0xFF);
      bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
  };
  this->Put(utf16(u"[ARNAG2100]\r\n\r\nOPText=\u00C5\u00C4\u00D6 \u0416\r\nOther=\u0416\r\n"));
  EXPECT_EQ(this->Read(L"ARNAG2100", L"OPText"), L"\u00C5\u00C4\u00D6 \u0416");
  EXPECT_TRUE(this->Write(L"ARNAG2100", L"OPText", L"\u0416\u00C5"));
  EXPECT_EQ(this->Read(L"ARNAG2100", L"OPText"), L"\u0416\u00C5");
  EXPECT_EQ(this->Bytes(), utf16(u"[ARNAG2100]\r\n\r\nOPText=\u0416\u00C5\r\nOther=\u0416\r\n"));
}

TEST(IniProfiles, SwedishLettersAreUtf8AndAMarkStays) {
  settings::TemporaryFolder folder;
  const std::wstring path = folder.Path(L"PTA_QX.ini");
  IniProfiles store;
  folder.Put(L"PTA_QX.ini", "\xEF\xBB\xBF[Malm\xC3\xB6]\r\nOPText=\xC3\x85\r\n");
  EXPECT_EQ(store.Read(path, L"MALM\u00D6", L"OPText"), L"\u00C5");
  EXPECT_TRUE(store.Write(path, L"Malm\u00F6", L"OPText", L"\u00C4\u00D6"));
  EXPECT_EQ(folder.Bytes(L"PTA_QX.ini"),
            "\xEF\xBB\xBF[Malm\xC3\xB6]\r\nOPText=\xC3\x84\xC3\x96\r\n");
}

TEST(IniProfiles, AFileInAnotherCodeKeepsItsBytes) {
  settings::TemporaryFolder folder;
  const std::wstring path = folder.Path(L"PTA_QX.ini");
  IniProfiles store;
  folder.Put(L"PTA_QX.ini", "[A]\r\nOPText=\xC5\xC4\xD6\r\nCityCode=STO\r\n");
  EXPECT_EQ(store.Read(path, L"A", L"OPText"), L"\u00C5\u00C4\u00D6");
  EXPECT_TRUE(store.Write(path, L"A", L"CityCode", L"G\u00D6T"));
  EXPECT_FALSE(store.Write(path, L"A", L"CityCode", L"\u0416"));
  EXPECT_EQ(folder.Bytes(L"PTA_QX.ini"), "[A]\r\nOPText=\xC5\xC4\xD6\r\nCityCode=G\xD6T\r\n");
}

TEST(IniProfiles, AFileOfHalfUnitsKeepsItsBytes) {
  settings::TemporaryFolder folder;
  IniProfiles store;
  folder.Put(L"PTA_QX.ini", "\xFF\xFE[");
  EXPECT_EQ(store.Read(folder.Path(L"PTA_QX.ini"), L"A", L"B"), L"");
  EXPECT_TRUE(store.Write(folder.Path(L"PTA_QX.ini"), L"A", L"B", L"C"));
  EXPECT_EQ(folder.Bytes(L"PTA_QX.ini"), "\xFF\xFE[\r\n[A]\r\nB=C\r\n");
}

}  // namespace
}  // namespace practice
