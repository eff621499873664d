#include <gtest/gtest.h>

#include <random>

#include "tests/pnr/TSTReadersBench.h"

// Random bookings against the rules said a second time, as plainly as can be: one character or one
// number at a time, without the product's text operations.
namespace pnr {
namespace {

constexpr unsigned kRuns = 400;

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  std::size_t Below(std::size_t limit) { return engine_() % limit; }
  bool OneIn(std::size_t chances) { return Below(chances) == 0; }
  const std::wstring& Of(const std::vector<std::wstring>& choices) {
    return choices[Below(choices.size())];
  }

 private:
  std::mt19937 engine_;
};

std::wstring Lower(std::wstring text) {
  for (wchar_t& c : text) {
    if (c >= L'A' && c <= L'Z') c = static_cast<wchar_t>(c - L'A' + L'a');
  }
  return text;
}

bool Holds(const std::wstring& text, const std::wstring& part) {
  return !text.empty() && text.find(part) != std::wstring::npos;
}

std::wstring Joined(const std::vector<std::wstring>& items, wchar_t separator) {
  std::wstring text;
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (i > 0) text += separator;
    text += items[i];
  }
  return text;
}

// Names that are alike on purpose: each may be part of another one.
std::vector<TSTReadersBench::Name> SomeNames(Dice& dice) {
  std::vector<TSTReadersBench::Name> names;
  const std::size_t count = dice.Below(13);
  for (std::size_t n = 1; n <= count; ++n) {
    std::wstring name = std::to_wstring(n) + L".";
    name += dice.Of({L"LI/A", L"LI/AN", L"Li/a", L"SMITH/JO MR", L"INF/INFA"});
    if (dice.OneIn(3)) name += dice.Of({L"(INFLI/BO)", L" (infLI/BO)", L"(INF)", L"(CHD)"});
    names.push_back({name, std::to_wstring(n + dice.Below(2))});
  }
  return names;
}

std::wstring SomeTSTNames(Dice& dice, const std::vector<TSTReadersBench::Name>& names) {
  std::wstring text;
  for (const auto& name : names) {
    if (dice.OneIn(3)) continue;
    std::wstring part = name.element.substr(0, name.element.find(L'('));
    if (dice.OneIn(4)) part = Lower(part);
    text += part + dice.Of({L"", L" ", L";"});
  }
  return text;
}

/// What the readings of the TSTs should have left behind.
struct NamesSaid {
  std::vector<std::wstring> list;
  std::vector<std::wstring> adults;
  std::vector<std::wstring> infants;
  int total = 0;
};

// What one TST adds; its own numbers are the answer.
std::vector<std::wstring> Say(const std::vector<TSTReadersBench::Name>& names,
                              const tst::TSTInfo& tst, NamesSaid& said) {
  std::vector<std::wstring> own;
  for (const auto& name : names) {
    if (tst.blnInf) {
      if (!Holds(Lower(name.element), L"(inf")) continue;
      said.infants.push_back(name.number);
      ++said.total;
      continue;
    }
    std::wstring adult;
    for (const wchar_t c : name.element) {
      if (c == L'(') break;
      adult += c;
    }
    while (adult.size() < name.element.size() && adult.ends_with(L' ')) adult.pop_back();
    if (!Holds(Lower(tst.strNames), Lower(adult))) continue;
    said.list.push_back(adult.substr(2));
    said.adults.push_back(name.number);
    ++said.total;
    own.push_back(name.number);
  }
  return own;
}

void CheckNames(unsigned seed) {
  Dice dice(seed);
  TSTReadersBench bench;
  const auto names = SomeNames(dice);
  bench.HasNames(names);
  NamesSaid said;
  for (std::size_t tsts = 1 + dice.Below(3); tsts > 0; --tsts) {
    tst::TSTInfo tst;
    tst.blnInf = dice.OneIn(4);
    tst.strNames = SomeTSTNames(dice, names);
    const std::size_t infantsBefore = said.infants.size();
    bench.room.GetNameInformation(tst);
    const std::vector<std::wstring> own = Say(names, tst, said);
    EXPECT_EQ(tst.strPasAsso, Joined(own, L','));
    EXPECT_EQ(static_cast<std::size_t>(tst.intNoNames),
              own.size() + said.infants.size() - infantsBefore);
  }
  EXPECT_EQ(bench.mco.strNameList, Joined(said.list, L';'));
  EXPECT_EQ(bench.mco.strFirstName, said.list.empty() ? L"" : said.list.front());
  EXPECT_EQ(bench.mco.strPasAsso, Joined(said.adults, L','));
  EXPECT_EQ(bench.mco.strINFPasAsso, Joined(said.infants, L','));
  EXPECT_EQ(bench.pnr.intTotalNames, said.total);
  EXPECT_TRUE(OnlyReports(bench.TakeCalls()).empty());
}

TEST(TSTReaders, AnyNamesInAnyTSTsAreCountedAndListedByTheRule) {
  for (unsigned seed = 1; seed <= kRuns && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    CheckNames(seed);
  }
}

std::vector<int> SomePassengers(Dice& dice) {
  std::vector<int> numbers;
  for (const int number : {1, 2, 3, 11, 12}) {
    if (dice.OneIn(2)) numbers.push_back(number);
  }
  return numbers;
}

std::wstring Association(const std::vector<int>& numbers) {
  std::vector<std::wstring> items;
  for (const int number : numbers) items.push_back(std::to_wstring(number));
  return Joined(items, L',');
}

struct FSElement {
  std::vector<int> passengers;
  bool infant;
  std::wstring segments;
  TSTReadersBench::FS content;
};

FSElement SomeFS(Dice& dice) {
  FSElement fs{SomePassengers(dice), dice.OneIn(4), dice.Of({L"", L"4", L"4,5"}), {}};
  std::reverse(fs.passengers.begin(), fs.passengers.end());
  std::wstring passengers = Association(fs.passengers);
  if (fs.infant) passengers += passengers.empty() ? L"INF" : L",INF";
  const std::vector<std::wstring> amounts{L"", L"900", L"SEK900", L"NO9", L"nok1", L"1.5"};
  fs.content = {dice.Of(amounts), dice.Of(amounts), dice.Of({L"", L"IT123"}), passengers,
                fs.segments};
  return fs;
}

bool IsFor(const FSElement& fs, bool infantTST, const std::vector<int>& wanted,
           const std::wstring& segments) {
  if (!fs.segments.empty() && !segments.empty() && fs.segments != segments) return false;
  if (fs.passengers.empty() && !fs.infant) return true;
  if (infantTST || fs.infant) return infantTST && fs.infant;
  for (const int passenger : wanted) {
    bool held = false;
    for (const int one : fs.passengers) held = held || one == passenger;
    if (!held) return false;
  }
  return true;
}

std::wstring InSEK(const std::wstring& amount) {
  if (amount.empty()) return amount;
  int letters = 0;
  for (const wchar_t c : Lower(amount)) {
    if (c < L'a' || c > L'z') break;
    ++letters;
  }
  return letters < 3 ? L"SEK" + amount : amount;
}

void CheckFares(unsigned seed) {
  Dice dice(seed);
  TSTReadersBench bench;
  bench.mco.strCurrency = L"SEK";
  bench.tst.blnInf = dice.OneIn(3);
  bench.general.strSegAsso = dice.Of({L"", L"4", L"4,5"});
  const std::vector<int> wanted = SomePassengers(dice);
  bench.tst.strPasAsso = Association(wanted);

  std::vector<TSTReadersBench::FS> elements;
  TSTReadersBench::FS said;
  for (std::size_t count = dice.Below(6); count > 0; --count) {
    const FSElement fs = SomeFS(dice);
    elements.push_back(fs.content);
    if (IsFor(fs, bench.tst.blnInf, wanted, bench.general.strSegAsso)) said = fs.content;
  }
  bench.HasFS(elements);
  bench.room.GetFareInformation(bench.tst);
  EXPECT_EQ(bench.totals.strNetFare, InSEK(said.netFare));
  EXPECT_EQ(bench.totals.strSellingFare, InSEK(said.sellingFare));
  EXPECT_EQ(bench.totals.strTourCode, said.tourCode);
  EXPECT_TRUE(OnlyReports(bench.TakeCalls()).empty());
}

TEST(TSTReaders, AnyFSElementsAreMatchedByTheRule) {
  for (unsigned seed = 1; seed <= kRuns && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    CheckFares(seed);
  }
}

}  // namespace
}  // namespace pnr
