#include "tests/practice/LibraryBench.h"

namespace practice {
namespace {

TEST(Bookings, EveryBookingThatIsDeliveredCanBeLoadedAndRead) {
  const auto folder = std::filesystem::path(__FILE__).parent_path() / "../../practice/pnrs";
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    if (file.path().extension() != ".pnr") continue;
    const std::string name = file.path().filename().string();
    SCOPED_TRACE(name);
    try {
      LibraryBench bench(BookingFile(name));
      EXPECT_TRUE(bench.host.HasActivePnr());
      bench.session.LoadPNR();
      EXPECT_GT(hostlib::PnrReader(bench.library).CountNameElements(), 0);
    } catch (const common::RunTimeError& error) {
      ADD_FAILURE() << common::ToUtf8(error.description());
    }
    ++count;
  }
  EXPECT_GT(count, 0);
}

}  // namespace
}  // namespace practice
