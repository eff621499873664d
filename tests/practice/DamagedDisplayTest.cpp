#include <random>

#include "tests/practice/LibraryBench.h"

// Displays with something wrong in them, given to every reader: what can not be read is a failure
// of the library or an answer that says so, and nothing worse.
namespace practice {
namespace {

constexpr unsigned kRuns = 400;

std::wstring Damaged(std::wstring display, std::mt19937& random) {
  const std::wstring alphabet = L" ,.[]-\r\n019APSTMLF";
  for (unsigned i = random() % 4; i > 0 && !display.empty(); --i) {
    const std::size_t at = random() % display.size();
    switch (random() % 4) {
      case 0:
        display[at] = alphabet[random() % alphabet.size()];
        break;
      case 1:
        display.erase(at, random() % 5);
        break;
      case 2:
        display.insert(at, 1, alphabet[random() % alphabet.size()]);
        break;
      default:
        // A line that ends early: what follows a blank goes.
        display.erase(at, display.find(L'\r', at) - at);
    }
  }
  return display;
}

template <typename Read>
void ReadOrFail(Read read) {
  try {
    read();
  } catch (const hostlib::LibraryError&) {
  }
}

void ReadPnr(LibraryBench& bench, const std::wstring& display) {
  bench.host.faults.garbage = {{bench.host.EntryCount() + 1, display}};
  ReadOrFail([&] { bench.session.LoadPNR(); });
  hostlib::PnrReader reader(bench.library);
  for (int index = 0; index < 3; ++index) {
    ReadOrFail([&] { reader.GetSegment(bench.Index(index)); });
    ReadOrFail([&] { reader.GetNameElement(bench.Index(index)); });
    ReadOrFail([&] { reader.GetRMElement(bench.Index(index)); });
    ReadOrFail([&] { reader.GetTKElement(bench.Index(index)); });
    for (const std::wstring_view type : {L"MCO", L"OSI", L"FS"}) {
      ReadOrFail([&] { bench.ReadElement(type, index); });
    }
  }
}

void ReadFares(LibraryBench& bench, const std::wstring& display) {
  hostlib::TstListRequest(bench.library).ReadResponse(display);
  hostlib::TstDetailRequest detail(bench.library);
  const auto bag = bench.Bag();
  ReadOrFail([&] { detail.ReadFare(bag, display); });
  ReadOrFail([&] { detail.ReadFareElements(bag, display); });
  ReadOrFail([&] { detail.ReadGeneral(bag, display); });
  ReadOrFail([&] { detail.ReadNames(bag, display); });
  hostlib::TsmDisplayReader(bench.library).ParseTQMResponse(display, bag);
}

TEST(DamagedDisplays, AreReadOrRefusedButNeverMore) {
  LibraryBench bench(BookingFile("ordinary.pnr"));
  bench.host.Enter(L"RM A [P1];OS SK PTA;FS NET 1;TS FARE SEK1 [P1];");
  std::vector<std::wstring> displays = {bench.host.Enter(L"RT"), bench.host.Enter(L"TQT"),
                                        bench.host.Enter(L"TQM"), bench.host.Enter(L"PV")};
  for (const std::wstring_view entry : {L"TR LIST TST ON", L"TR LIST TSM ON"}) {
    bench.host.Enter(entry);
  }
  displays.push_back(bench.host.Enter(L"TQT"));
  displays.push_back(bench.host.Enter(L"TQM"));
  for (unsigned seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::wstring display = Damaged(displays[random() % displays.size()], random);
    ReadPnr(bench, display);
    ReadFares(bench, display);
    ReadOrFail([&] { hostlib::OfficeDisplayReader(bench.library).ReadResponse(display); });
  }
}

TEST(DamagedDisplays, WhatLooksLikeADisplayButHasNothingInItsLinesIsNotTaken) {
  LibraryBench bench(BookingFile("ordinary.pnr"));
  ReadPnr(bench, L"PNR A OFFICE B\r\n1 SG\r\nEND OF PNR");
  ReadPnr(bench, L"PNR A OFFICE B\r\n1 SG X\r\n2 MCO SK,FA\r\n3 TK \r\n4 OS \r\nEND OF PNR");
  EXPECT_EQ(bench.Text(bench.ReadElement(L"MCO", 0), L"strKeyMCOFATicketNbr"), L"");
  ReadFares(bench, L"TST \r\nEND OF TST");
  ReadFares(bench, L"TST 1\r\nFP 99999 X\r\nFM 5\r\nEND OF TST");
  ReadFares(bench, L"TSM LIST 1\r\n99999,1,,,,,,\r\nEND OF LIST");
}

TEST(DamagedDisplays, OfAPNRWithAnElementThatIsAllAssociationCanNotBeRead) {
  LibraryBench bench;
  bench.host.faults.garbage = {{bench.host.EntryCount() + 1,
                                L"PNR ABC123 OFFICE ARNAG2100\r\n1.SMITH/JOHN MR\r\n"
                                L"2 RMTEXT [P1]\r\nEND OF PNR"}};
  try {
    bench.session.LoadPNR();
    FAIL() << "it was read";
  } catch (const hostlib::LibraryError& error) {
    EXPECT_EQ(error.description(), L"The PNR can not be read: PNR ABC123 OFFICE ARNAG2100");
  }
}

}  // namespace
}  // namespace practice
