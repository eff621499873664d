#include <algorithm>
#include <random>

#include "tests/practice/LibraryBench.h"

// Random PNRs, entered, displayed and read back through the library. The seed is in the message of
// every failure.
namespace practice {
namespace {

constexpr unsigned kRuns = 60;

/// What a line of the PNR should be.
struct Expected {
  std::wstring code;
  std::wstring text;
  std::wstring passengers;
  std::wstring segments;
};

const std::vector<std::wstring> kOrder = {L"NM", L"SG", L"MCO", L"TK", L"AP", L"FP", L"FM",
                                          L"FV", L"FS", L"FA",  L"FO", L"OP", L"RM", L"OS"};

class RandomPnr {
 public:
  explicit RandomPnr(unsigned seed) : random_(seed) {}

  std::vector<Expected> Make() {
    const int names = Up(9);
    const int segments = Up(5);
    std::vector<Expected> lines;
    for (int i = 0; i < names; ++i) lines.push_back({L"NM", Name(), {}, {}});
    for (int i = 0; i < segments; ++i) lines.push_back({L"SG", Segment(), {}, {}});
    for (int i = Up(25); i > 0; --i) {
      Expected line = Element();
      if (line.code != L"TK") {
        line.passengers = Lines(1, names);
        line.segments = Lines(names + 1, names + segments);
      }
      lines.push_back(line);
    }
    return lines;
  }

 private:
  int Up(int to) { return std::uniform_int_distribution<int>(1, to)(random_); }
  bool Coin() { return Up(2) == 1; }
  std::wstring Pick(const std::vector<std::wstring>& from) {
    return from[static_cast<std::size_t>(Up(static_cast<int>(from.size()))) - 1];
  }
  std::wstring Digits(int count) {
    std::wstring digits;
    while (count-- > 0) digits += static_cast<wchar_t>(L'0' + Up(10) - 1);
    return digits;
  }
  std::wstring Words(const std::wstring& alphabet, int longest) {
    std::wstring text;
    for (int i = Up(longest); i > 0; --i) {
      text += alphabet[static_cast<std::size_t>(Up(static_cast<int>(alphabet.size()))) - 1];
    }
    return text;
  }
  std::wstring Date() {
    const int day = Up(28);
    return (day < 10 ? L"0" : L"") + std::to_wstring(day) + Pick({L"JAN", L"JUN", L"DEC"}) +
           Digits(2);
  }
  std::wstring Amount() {
    return Pick({L"SEK", L"NOK", L""}) + Digits(4) + (Coin() ? L".50" : L"");
  }
  std::wstring Document() { return Digits(3) + L"-" + Digits(10); }
  std::wstring Airline() { return Pick({L"SK", L"LH", L"9W", L"B6"}); }
  std::wstring Person() {
    return Pick({L"SMITH", L"AF-TRAMP", L"VON ESSEN"}) + L"/" +
           Pick({L"JOHN MR", L"A", L"EVA MRS"});
  }
  std::wstring Name() {
    if (Coin()) return Person();
    return Person() + (Coin() ? L"(INF" + Person() + L")" : L"(CHD)");
  }
  std::wstring Segment() {
    const std::wstring cities = L" ARN " + Pick({L"CPH", L"OSL"});
    if (Coin()) return Airline() + L" OPEN Y" + (Coin() ? L" " + Date() : L"") + cities;
    return Airline() + Digits(Up(4)) + L" Y " + Date() + cities + L" HK" + Digits(Up(2)) +
           (Coin() ? L" 0700 0810" : L"");
  }
  std::wstring Mco() {
    return (Coin() ? Airline() : L"--") + (Coin() ? L",FM *C*" + Digits(2) : L"") +
           (Coin() ? L",FP O/PT/CASH + CC" : L"") + (Coin() ? L",FA " + Document() : L"");
  }
  std::wstring Fare() {
    return L"NET " + Amount() + (Coin() ? L" SELL " + Amount() : L"") +
           (Coin() ? L" TOUR IT" + Digits(3) : L"");
  }
  Expected Element() {
    const std::wstring any = L"ABCXYZabc  0123456789.,:/+-*()'\"&%\u00C5\u20AC";
    const std::wstring code = Pick({kOrder.begin() + 2, kOrder.end()});
    if (code == L"MCO") return {code, Mco(), {}, {}};
    if (code == L"TK") return {code, Pick({L"OK", L"OK/STOSK08AA/Q", L"TL " + Date()}), {}, {}};
    if (code == L"AP") return {code, L"A" + Words(any, 60) + L"B", {}, {}};
    if (code == L"FP")
      return {code, Pick({L"CASH", L"O/CASH", L"O/PT/CCVI4111 + CASHAGT"}), {}, {}};
    if (code == L"FM") return {code, Pick({L"10", L"*C*10", L"100A", L"*9.50"}), {}, {}};
    if (code == L"FV") return {code, Airline(), {}, {}};
    if (code == L"FS") return {code, Fare(), {}, {}};
    if (code == L"FA") return {code, Document(), {}, {}};
    if (code == L"FO") return {code, Document() + L" STO " + Digits(8), {}, {}};
    if (code == L"OP") return {code, Date() + (Coin() ? L" CHECK" : L""), {}, {}};
    if (code == L"OS") return {code, Airline() + (Coin() ? L" PTA" : L""), {}, {}};
    return {code, Words(any, 80), {}, {}};
  }
  /// Some of the lines, each number written out; mostly none.
  std::wstring Lines(int first, int last) {
    std::wstring list;
    if (Up(3) > 1) return list;
    for (int line = first; line <= last; ++line) {
      if (Coin()) list += (list.empty() ? L"" : L",") + std::to_wstring(line);
    }
    return list;
  }

  std::mt19937 random_;
};

std::wstring EntryOf(const Expected& line) {
  std::wstring association = line.passengers.empty() ? L"" : L"P" + line.passengers;
  if (!line.segments.empty()) association += (association.empty() ? L"S" : L" S") + line.segments;
  return line.code + L" " + line.text + (association.empty() ? L"" : L" [" + association + L"]");
}

// Runs shortened from two numbers on, as the display has them.
std::wstring Shortened(const std::wstring& list) {
  std::wstring text;
  int first = 0;
  int last = 0;
  const auto flush = [&] {
    if (first == 0) return;
    text += (text.empty() ? L"" : L",") + std::to_wstring(first);
    if (last > first) text += L"-" + std::to_wstring(last);
  };
  for (std::size_t at = 0; at < list.size();) {
    std::size_t end = list.find(L',', at);
    if (end == list.npos) end = list.size();
    const int number = std::stoi(list.substr(at, end - at));
    if (first == 0 || number != last + 1) {
      flush();
      first = number;
    }
    last = number;
    at = end + 1;
  }
  flush();
  return text;
}

std::wstring LineOf(const Expected& line, std::size_t number) {
  Expected shown = line;
  shown.passengers = Shortened(line.passengers);
  shown.segments = Shortened(line.segments);
  if (line.code == L"NM") return std::to_wstring(number) + L"." + line.text;
  return std::to_wstring(number) + L" " + EntryOf(shown);
}

// The lines in the order in which a PNR has them, however they came.
std::vector<Expected> Sorted(std::vector<Expected> lines) {
  std::stable_sort(lines.begin(), lines.end(), [](const Expected& a, const Expected& b) {
    const auto place = [](const std::wstring& code) {
      return std::find(kOrder.begin(), kOrder.end(), code);
    };
    return place(a.code) < place(b.code);
  });
  return lines;
}

std::vector<std::wstring> Search(LibraryBench& bench, const std::wstring& code) {
  const auto bag = bench.Bag(
      {{L"strKeyPNRElement", L"ALL"}, {L"strKeyFind()", hostlib::TextArray{{L"", code}, 0}}});
  auto lines = hostlib::TextsOf(
                   hostlib::PnrReader(bench.library).FindElements(bag).GetValue(L"strKeyResult()"))
                   .items;
  lines.erase(lines.begin());
  return lines;
}

void ExpectSameElements(LibraryBench& bench, const std::vector<Expected>& sorted) {
  for (const std::wstring& code : kOrder) {
    std::vector<std::wstring> expected;
    for (std::size_t i = 0; i < sorted.size(); ++i) {
      if (sorted[i].code == code) expected.push_back(LineOf(sorted[i], i + 1));
    }
    EXPECT_EQ(Search(bench, code), expected);
  }
}

void ExpectSameRemarks(LibraryBench& bench, const std::vector<Expected>& sorted) {
  hostlib::PnrReader reader(bench.library);
  int index = 0;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    if (sorted[i].code != L"RM") continue;
    auto bag = bench.Index(index++);
    reader.GetRMElement(bag);
    EXPECT_EQ(bench.Text(bag, L"strKeyText"), sorted[i].text);
    EXPECT_EQ(bench.Text(bag, L"strKeyPasAsso"), Shortened(sorted[i].passengers));
    EXPECT_EQ(bench.Text(bag, L"strKeySegAsso"), Shortened(sorted[i].segments));
    EXPECT_EQ(bench.Text(bag, L"strKeyElementNr"), std::to_wstring(i + 1));
  }
  EXPECT_EQ(reader.CountRMElements(), index);
}

TEST(RoundTrip, RandomPnrsAreReadBackAsTheyWereEntered) {
  for (unsigned seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const std::vector<Expected> lines = RandomPnr(seed).Make();
    LibraryBench bench;
    for (const Expected& line : lines) {
      const std::wstring answer = bench.host.Enter(EntryOf(line));
      ASSERT_TRUE(answer.starts_with(L"PNR "))
          << common::ToUtf8(EntryOf(line)) << ": " << common::ToUtf8(answer);
    }
    bench.session.LoadPNR();
    ExpectSameElements(bench, Sorted(lines));
    ExpectSameRemarks(bench, Sorted(lines));
    if (testing::Test::HasFailure()) return;
  }
}

TEST(RoundTrip, WhateverIsEnteredARefusalChangesNothingAndADisplayCanBeRead) {
  const std::wstring alphabet = L" ;/[]-,.*0123456789ABCDEFGMNOPRSTUX\r\n";
  for (unsigned seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    LibraryBench bench(BookingFile("ordinary.pnr"));
    for (int i = 0; i < 20; ++i) {
      std::vector<Expected> lines = RandomPnr(static_cast<unsigned>(random())).Make();
      std::wstring entry = EntryOf(lines[random() % lines.size()]);
      if (random() % 4 == 0) entry = L"TU 1 PTA/FARE F SEK1000 TAX SEK120XT/NVA 15MAR07";
      if (random() % 4 == 0) entry = L"CH 7 " + entry.substr(3);
      entry[random() % entry.size()] = alphabet[random() % alphabet.size()];
      const std::wstring before = bench.host.PnrText();
      const std::wstring answer = bench.host.Enter(entry);
      if (answer.starts_with(L"REFUSED: ")) {
        EXPECT_EQ(bench.host.PnrText(), before) << common::ToUtf8(entry);
      }
      if (!bench.host.HasActivePnr()) continue;
      EXPECT_NO_THROW(bench.session.LoadPNR());
    }
    if (testing::Test::HasFailure()) return;
  }
}

}  // namespace
}  // namespace practice
