#include <gtest/gtest.h>

#include "common/Text.h"
#include "practice/host/BookingOrder.h"
#include "tests/docs/Documents.h"
#include "tests/docs/SourceTexts.h"
#include "tests/run/Scenes.h"

// The practice collection: the menu has every booking, and docs/bookings.md says what each teaches.
namespace docs {
namespace {

std::vector<std::string> InMenu() {
  std::vector<std::string> names;
  for (const std::wstring& name :
       practice::MenuNames(run::ReadProjectFile("practice/pnrs/menu.txt"))) {
    names.push_back(common::ToUtf8(name));
  }
  return names;
}

TEST(Bookings, StandInTheMenuEachOnce) {
  std::vector<std::string> menu = InMenu();
  std::sort(menu.begin(), menu.end());
  EXPECT_EQ(menu, run::BookingNames());
}

TEST(Bookings, HaveAnAgentEach) {
  for (const std::string& name : run::BookingNames()) EXPECT_TRUE(run::HasAgent(name)) << name;
}

TEST(Bookings, StandInTheDocumentInTheOrderOfTheMenu) {
  std::vector<std::string> documented;
  for (const Row& row : CodeRows(run::ReadProjectFile("docs/bookings.md"))) {
    documented.push_back(common::ToUtf8(row[0]));
  }
  EXPECT_EQ(documented, InMenu());
}

TEST(Bookings, TeachWhatTheDocumentSays) {
  for (const Row& row : CodeRows(run::ReadProjectFile("docs/bookings.md"))) {
    const std::wstring booking = run::SceneOf(common::ToUtf8(row[0])).booking;
    const std::wstring teaches = booking.substr(2, booking.find(L'\n') - 2);
    EXPECT_EQ(common::ToUtf8(row[1]), common::ToUtf8(Plain(teaches)));
    EXPECT_GT(row[2].size(), 10U) << common::ToUtf8(row[0]) << " reaches no rule";
  }
}

}  // namespace
}  // namespace docs
