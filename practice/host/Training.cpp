#include "practice/host/Host.h"
#include "practice/host/Syntax.h"

// The trainer's entries, which set the scene, and the bookings made of entries.
namespace practice {
namespace {

using Words = std::vector<std::wstring>;

bool ReadSwitch(std::wstring_view word) {
  if (word != L"ON" && word != L"OFF") throw Refused{L"ON OR OFF"};
  return word == L"ON";
}

Queues::State ReadState(std::wstring_view word) {
  if (word == L"CLOSED") return Queues::State::kClosed;
  return ReadSwitch(word) ? Queues::State::kOn : Queues::State::kOff;
}

}  // namespace

// TR LOCATOR ABC123 | TR OFFICE ARNAG2100 | TR PRINTER OFF | TR LIST TST ON |
// TR QUEUE CLOSED 80 CAT 1 AT STOSK08AA | TR FA 1 117-4012345678 AFTER 2
std::wstring Host::Train(const Words& words) {
  const std::wstring what = words.size() < 3 ? std::wstring() : words[1];
  if (what == L"LOCATOR" && words.size() == 3) {
    if (!syntax::IsLocator(words[2])) throw Refused{L"LOCATOR: ABC123"};
    Active().locator = words[2];
    changed_ = true;
  } else if (what == L"OFFICE" && words.size() == 3) {
    if (!syntax::IsOffice(words[2])) throw Refused{L"NO OFFICE " + words[2]};
    scene_.office = words[2];
  } else if (what == L"PRINTER" && words.size() == 3) {
    scene_.printerOn = ReadSwitch(words[2]);
  } else if (what == L"LIST" && words.size() == 4) {
    TrainList(words);
  } else if (what == L"QUEUE") {
    queues_.SetState(Queues::ReadPlace(Words(words.begin() + 3, words.end())), ReadState(words[2]));
  } else if (what == L"FA") {
    TrainDocument(words);
  } else {
    throw Refused{L"TR: LOCATOR, OFFICE, PRINTER, LIST, QUEUE OR FA"};
  }
  return L"OK";
}

void Host::TrainList(const Words& words) {
  const bool on = ReadSwitch(words[3]);
  if (words[2] == L"TST") {
    scene_.listTst = on;
  } else if (words[2] == L"TSM") {
    scene_.listTsm = on;
  } else {
    throw Refused{L"LIST: TST OR TSM"};
  }
}

void Host::TrainDocument(const Words& words) {
  const bool formed = words.size() == 6 && words[4] == L"AFTER";
  const int mco = formed ? syntax::NumberIn(words[2]) : 0;
  const int rereads = formed ? syntax::NumberIn(words[5]) : 0;
  if (mco < 1 || rereads < 1 || !syntax::IsDocument(words[3])) {
    throw Refused{L"FA: MCO 1, DOCUMENT, AFTER RE-READS"};
  }
  if (Active().locator.empty()) throw Refused{L"THE PNR HAS NO LOCATOR"};
  if (static_cast<std::size_t>(mco) > pnr_.Ids(Kind::kMco).size()) {
    throw Refused{L"NO MCO " + words[2]};
  }
  scene_.pending.push_back({pnr_.locator, mco, words[3], rereads});
}

void Host::LoadBooking(std::wstring_view text) {
  active_ = changed_ = false;
  scene_ = {};
  queues_.OpenAll();
  printed_.clear();
  backOffice_.clear();
  if (text.starts_with(L'\xFEFF')) text.remove_prefix(1);
  int number = 0;
  for (std::wstring& line : syntax::Split(text, L'\n')) {
    ++number;
    while (!line.empty() && (line.back() == L'\r' || line.back() == L' ')) line.pop_back();
    if (line.empty() || line.front() == L'#') continue;
    try {
      bool display = false;
      Execute(line, display);
    } catch (const Refused& refused) {
      active_ = false;
      throw BookingError(number, refused.why);
    }
  }
  if (active_ && !pnr_.locator.empty()) Store();
}

}  // namespace practice
