#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>

#include "common/Literal.h"
#include "common/Text.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptErrorReporter.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "practice/library/PracticeLibrary.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FixedPlatform.h"

namespace practice {

/// INI files in memory; one of them can be write-protected.
class ProfilesInMemory : public Profiles {
 public:
  bool writable = true;
  std::map<std::vector<std::wstring>, std::wstring> values;

  std::wstring Read(std::wstring_view path, std::wstring_view section,
                    std::wstring_view key) override {
    return values[{std::wstring(path), std::wstring(section), std::wstring(key)}];
  }
  bool Write(std::wstring_view path, std::wstring_view section, std::wstring_view key,
             std::wstring_view value) override {
    if (writable) values[{std::wstring(path), std::wstring(section), std::wstring(key)}] = value;
    return writable;
  }
};

/// A practice booking as it is delivered.
inline std::wstring BookingFile(const std::string& name) {
  const auto folder = std::filesystem::path(__FILE__).parent_path() / "../../practice/pnrs";
  std::ifstream file(folder / name, std::ios::binary);
  EXPECT_TRUE(file) << name;
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return common::FromUtf8(bytes.str());
}

/// The practice library over a practice host, with the facades that every run has.
struct LibraryBench {
  explicit LibraryBench(std::wstring_view booking = {}) {
    if (!booking.empty()) host.LoadBooking(booking);
    session.Connect(library);
    reporter.Create(library);
  }

  /// What a bag gets, under which key.
  struct Input {
    common::Literal key;
    hostlib::Value value;
  };
  /// A fresh bag with these keys.
  hostlib::ParameterBag Bag(std::initializer_list<Input> content = {}) {
    hostlib::ParameterBag bag(library);
    for (const auto& [key, value] : content) bag.SetValue(key, value);
    return bag;
  }
  std::wstring Text(const hostlib::ParameterBag& bag, common::Literal key) {
    return global.TextIn(bag, key);
  }
  bool Flag(const hostlib::ParameterBag& bag, common::Literal key) {
    return global.FlagIn(bag, key);
  }
  hostlib::ParameterBag Index(int index) {
    return Bag({{L"intKeyIndex", static_cast<std::int16_t>(index)}});
  }
  /// The bag of a typed read.
  hostlib::ParameterBag ReadElement(std::wstring_view type, int index) {
    hostlib::ParameterBag bag = Index(index);
    bag.SetValue(L"strKeyPNRElement", type);
    hostlib::PnrReader(library).ReadElement(bag);
    return bag;
  }

  Host host;
  support::FixedPlatform platform;
  ProfilesInMemory profiles;
  UserValuesInMemory userValues;
  support::FakeDesktop desktop;
  PracticeLibrary library{{host, platform, profiles, userValues, desktop}};
  hostlib::ScriptGlobal global{library};
  hostlib::TerminalSession session;
  hostlib::ScriptErrorReporter reporter;
};

}  // namespace practice
