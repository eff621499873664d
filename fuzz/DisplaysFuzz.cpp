#include "fuzz/Input.h"
#include "fuzz/ProductBench.h"

// An answer of the host, given to every reader of displays: it is read, or the library fails.

namespace {

template <typename Read>
void ReadOrFail(Read read) {
  try {
    read();
  } catch (const hostlib::LibraryError&) {
    // How the library says that it can not.
  }
}

void ReadPnr(fuzz::ProductBench& bench, const std::wstring& display) {
  bench.host.faults.garbage = {{bench.host.EntryCount() + 1, display}};
  ReadOrFail([&] { bench.session.LoadPNR(); });
  hostlib::PnrReader reader(bench.library);
  for (int i = 0; i < 3; ++i) {
    ReadOrFail([&] { reader.GetSegment(bench.Index(i)); });
    ReadOrFail([&] { reader.GetNameElement(bench.Index(i)); });
    ReadOrFail([&] { reader.GetRMElement(bench.Index(i)); });
    ReadOrFail([&] { reader.GetTKElement(bench.Index(i)); });
    ReadOrFail([&] { reader.GetOPElement(bench.Index(i)); });
    for (const std::wstring_view type : {L"MCO", L"OSI", L"FS"}) {
      ReadOrFail([&] { reader.ReadElement(bench.Typed(i, type)); });
    }
  }
  ReadOrFail([&] { reader.GetHeader(bench.Bag()); });
}

void ReadFares(fuzz::ProductBench& bench, const std::wstring& display) {
  const hostlib::ParameterBag bag = bench.Bag();
  ReadOrFail([&] { hostlib::TstListRequest(bench.library).ReadResponse(display); });
  hostlib::TstDetailRequest detail(bench.library);
  ReadOrFail([&] { detail.ReadFare(bag, display); });
  ReadOrFail([&] { detail.ReadFareElements(bag, display); });
  ReadOrFail([&] { detail.ReadGeneral(bag, display); });
  ReadOrFail([&] { detail.ReadNames(bag, display); });
  ReadOrFail([&] { hostlib::TsmDisplayReader(bench.library).ParseTQMResponse(display, bag); });
}

void ReadClosing(fuzz::ProductBench& bench, const std::wstring& display) {
  ReadOrFail([&] { hostlib::OfficeDisplayReader(bench.library).ReadResponse(display); });
  ReadOrFail([&] { hostlib::QueueRequest(bench.library).ReadResponse(display); });
  ReadOrFail([&] { hostlib::PrintRequest(bench.library).ReadResponse(display); });
  ReadOrFail([&] { hostlib::PnrElementEntry(bench.library).ReadResponse(display); });
  ReadOrFail([&] { hostlib::PnrElementChange(bench.library).ReadResponse(display); });
  ReadOrFail([&] { hostlib::RemarkDivider(bench.library).Divide(display); });
  ReadOrFail([&] { bench.global.FormatAssociation(display); });
  ReadOrFail([&] { bench.global.HostDateToText(display); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring display = fuzz::TextOf(data, size);
  fuzz::ProductBench bench;
  ReadPnr(bench, display);
  ReadFares(bench, display);
  ReadClosing(bench, display);
  return 0;
}
