#include <gtest/gtest.h>

#include <algorithm>

#include "fares/Amounts.h"
#include "tests/support/FixedPlatform.h"

namespace fares {
namespace {

class LocaleOf : public support::FixedPlatform {
 public:
  LocaleOf(int length, std::string content) : length_(length), content_(std::move(content)) {}
  int LocaleInfo(std::uint32_t locale, int type, std::span<char> buffer) const override {
    EXPECT_EQ(locale, 0x041Du);
    EXPECT_EQ(type, 14);
    if (!buffer.empty()) {
      EXPECT_EQ(static_cast<int>(buffer.size()), length_);
      std::copy_n(content_.c_str(), std::min(buffer.size(), content_.size() + 1), buffer.data());
    }
    return length_;
  }

 private:
  int length_;
  std::string content_;
};

TEST(GetDecimalSymbol, IsTheLocalesSeparatorWithoutItsNUL) {
  EXPECT_EQ(GetDecimalSymbol(LocaleOf(2, ",")), L",");
  EXPECT_EQ(GetDecimalSymbol(LocaleOf(2, ".")), L".");
  EXPECT_EQ(GetDecimalSymbol(LocaleOf(3, "::")), L"::");
  EXPECT_EQ(GetDecimalSymbol(LocaleOf(4, ",")), L",") << "cut at the first NUL";
}

TEST(GetDecimalSymbol, IsEmptyWhenTheLocaleDoesNotTell) {
  EXPECT_EQ(GetDecimalSymbol(LocaleOf(0, "")), L"");
  EXPECT_EQ(GetDecimalSymbol(LocaleOf(1, "")), L"");
}

/// Tells the length, and then not the separator.
class ForgetfulLocale : public support::FixedPlatform {
 public:
  int LocaleInfo(std::uint32_t, int, std::span<char> buffer) const override {
    return buffer.empty() ? 2 : 0;
  }
};

TEST(GetDecimalSymbol, IsEmptyWhenTheSeparatorItselfIsRefused) {
  EXPECT_EQ(GetDecimalSymbol(ForgetfulLocale()), L"");
}

}  // namespace
}  // namespace fares
