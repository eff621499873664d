#include <gtest/gtest.h>

#include <random>

#include "common/Text.h"
#include "tests/run/WritingRules.h"

// Bookings, settings and agents by chance: after a run without a refusal the host was sent exactly
// what the rules ask for, and the PNR is exactly what they make of it. Then the same PNR again.
namespace run {
namespace {

constexpr int kBookings = 30;

class Chance {
 public:
  explicit Chance(unsigned seed) : engine_(seed) {}

  int From(int least, int most) {
    return least + static_cast<int>(engine_() % static_cast<unsigned>(most - least + 1));
  }
  bool OneIn(int cases) { return From(1, cases) == 1; }
  std::wstring Of(const std::vector<std::wstring>& texts) {
    return texts[static_cast<std::size_t>(From(0, static_cast<int>(texts.size()) - 1))];
  }
  std::wstring Words(int length) {
    std::wstring text(1, static_cast<wchar_t>(L'A' + From(0, 25)));
    while (static_cast<int>(text.size()) < length) {
      const bool blank = text.back() != L' ' && OneIn(7);
      text += blank ? L' ' : static_cast<wchar_t>(L'A' + From(0, 25));
    }
    if (text.back() == L' ') text.back() = L'Z';
    return text;
  }

 private:
  std::mt19937 engine_;
};

ModelFare FareBy(Chance& chance, const ModelAssociation& whom, bool hasEquivalent) {
  ModelFare fare;
  fare.whom = whom;
  const int amount = chance.From(50, 9000);
  fare.fare = (hasEquivalent ? L"NOK" : L"SEK") + std::to_wstring(amount);
  if (hasEquivalent) fare.equivalent = L"SEK" + std::to_wstring(chance.From(50, 9000));
  for (const wchar_t* code : {L"XT", L"YQ", L"XSGO", L"ZR"}) {
    if (!chance.OneIn(2)) continue;
    fare.taxes.push_back(L"SEK" + std::to_wstring(chance.From(1, 400)) + code);
  }
  fare.total = L"SEK" + std::to_wstring(chance.From(100, 12000));
  fare.indicator = chance.Of({L"F", L"H", L""});
  if (chance.OneIn(4)) fare.xf = chance.Of({L"SEK4.50", L"SEK12"});
  if (chance.OneIn(5)) fare.notValidAfter = L"20JUN07";
  fare.pta = chance.OneIn(8);
  return fare;
}

// Fares for neighbouring passengers, perhaps one for the infants.
void AddFares(BookingModel& booking, Chance& chance, int names) {
  const bool hasEquivalent = chance.OneIn(4);
  const bool hasInfantFare = booking.CountInfants() > 0 && !chance.OneIn(3);
  std::vector<ModelAssociation> groups;
  for (int next = 1; next <= names;) {
    const int last = chance.From(next, names);
    groups.push_back({hasInfantFare ? L"PAX" : L"", {}, true});
    while (next <= last) groups.back().passengers.push_back(next++);
  }
  if (hasInfantFare) {
    groups.push_back({L"INF", {}, true});
    for (int name = 1; name <= names; ++name) {
      if (booking.HasInfant(name)) groups.back().passengers.push_back(name);
    }
  }
  if (groups.size() == 1) groups.front().segments = false;
  for (const auto& whom : groups) booking.fares.push_back(FareBy(chance, whom, hasEquivalent));
}

// For all, for some of the fares, or not at all.
void AddFareElements(BookingModel& booking, Chance& chance, const std::wstring& code,
                     const std::vector<std::wstring>& texts) {
  if (chance.OneIn(2)) booking.lines[code].push_back({chance.Of(texts), {}});
  for (const ModelFare& fare : booking.fares) {
    if (chance.OneIn(3)) booking.lines[code].push_back({chance.Of(texts), fare.whom});
  }
}

BookingModel BookingBy(Chance& chance) {
  static const std::vector<std::wstring> kNames = {
      L"ASK/ADAM MR",    L"BERG/BEA MRS",  L"CEDER/CARL MR", L"DAHL/DORA MRS", L"EK/ERIK MR",
      L"FALK/FREDA MRS", L"GRAN/GORAN MR", L"HOLM/HANS MR",  L"IDE/IDA MRS"};
  BookingModel booking;
  const int names = chance.From(1, static_cast<int>(kNames.size()));
  for (int i = 0; i < names; ++i) {
    const std::wstring infant = chance.OneIn(4) ? L"(INFSMALL/ONE)" : L"";
    booking.lines[L"NM"].push_back({kNames[static_cast<std::size_t>(i)] + infant, {}});
  }
  const std::wstring status = L" HK" + std::to_wstring(names);
  booking.lines[L"SG"] = {{L"SK1234 Y 15MAR07 ARN CPH" + status, {}},
                          {L"SK1423 Y 22MAR07 CPH ARN" + status, {}}};
  booking.lines[L"MCO"] = {{chance.Of({L"SK", L"SK", L"LH"}) + L",FM *C*10,FP CASH,FA " +
                                chance.Of({L"117", L"220"}) + L"-4012345678",
                            {}}};
  booking.lines[L"TK"] = {
      {chance.Of({L"TL 10MAR07", L"XL 10MAR07/1800", L"TL 10MAR07/Q8", L"OK", L"OK/STOSK08AA"}),
       {}}};
  booking.lines[L"AP"] = {{L"STO 08-1234567", {}}};
  booking.feeText = chance.Of({L"250", L"0", L"99.50", L"1000"});
  AddFares(booking, chance, names);
  AddFareElements(booking, chance, L"FP", {L"CASH", L"O/PT/CASH", L"O/CASH", L"CHECK"});
  AddFareElements(booking, chance, L"FM", {L"10", L"9"});
  AddFareElements(booking, chance, L"FV", {L"SK", L"LH"});
  if (chance.OneIn(3)) booking.lines[L"OP"].push_back({L"10MAR07 CALL", {}});
  if (chance.OneIn(5)) booking.lines[L"OP"].push_back({L"16MAR07", {}});
  if (chance.OneIn(3)) booking.lines[L"RM"].push_back({L"KEEP  THIS", {}});
  if (chance.OneIn(2)) booking.lines[L"RM"].push_back({L"PWCT SK AT ARN", {}});
  if (chance.OneIn(3)) booking.lines[L"RM"].push_back({L"*AND THIS", {}});
  return booking;
}

ModelSettings SettingsBy(Chance& chance) {
  ModelSettings settings;
  settings.printPNR = !chance.OneIn(3);
  settings.addOP = !chance.OneIn(3);
  settings.opText = chance.Of({L"CHECK IF TICKET OK", L""});
  settings.panelMode = chance.OneIn(3);
  settings.sendBOD = !chance.OneIn(3);
  settings.passengerSegmentAsso = chance.OneIn(2);
  settings.includeRMinBOD = chance.OneIn(3);
  settings.noTKUpdate = chance.OneIn(4);
  settings.country = chance.Of({L"SE", L"DK", L""});
  settings.decimal = chance.OneIn(2) ? "," : ".";
  return settings;
}

// What just fits into one remark, behind its code and star.
int LongestInfo(const BookingModel& booking, const std::vector<std::size_t>& chosen) {
  ModelAssociation whom{L"", {}, booking.fares.size() > 1};
  for (const std::size_t index : chosen) {
    const ModelAssociation& one = booking.fares[index].whom;
    if (one.type == L"INF") continue;
    whom.passengers.insert(whom.passengers.end(), one.passengers.begin(), one.passengers.end());
  }
  return 124 - 4 - static_cast<int>(booking.AssociationText(whom).size());
}

ModelAgent AgentBy(Chance& chance, const BookingModel& booking, bool canInform, bool hasPWCT) {
  ModelAgent agent;
  for (std::size_t i = 0; i < booking.fares.size(); ++i) {
    if (booking.fares.size() == 1 || !chance.OneIn(3)) agent.chosen.push_back(i);
  }
  if (agent.chosen.empty()) agent.chosen.push_back(0);
  if (!hasPWCT) agent.pwct = chance.Words(chance.From(1, 160));
  if (hasPWCT && chance.OneIn(2)) agent.pwct = chance.Words(chance.From(1, 60));
  if (canInform && chance.OneIn(2)) {
    const int longest = LongestInfo(booking, agent.chosen);
    agent.backOfficeInfo =
        chance.Words(chance.OneIn(2) ? longest + chance.From(0, 1) : chance.From(1, 300));
  }
  if (chance.OneIn(3)) agent.total = chance.Words(chance.From(1, 160));
  agent.office = chance.Of({L"", L"STOSK08AA", L"FRALH0123"});
  agent.queue = chance.Of({L"80", L"80C1", L"7"});
  agent.clicksNoTSTUpdate = chance.OneIn(5);
  return agent;
}

bool HoldsPWCT(BookingModel& booking) {
  for (const ModelLine& line : booking.lines[L"RM"]) {
    if (line.text.starts_with(L"PWCT")) return true;
  }
  return false;
}

// The entries behind the dialog's OK: the last that the reading sends displays a fare.
Lines EntriesBehind(const Lines& all, bool isList) {
  std::size_t begin = 0;
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (all[i].starts_with(isList ? L"TQT " : L"TQT") && all[i] != L"TQTP") begin = i + 1;
  }
  return {all.begin() + static_cast<std::ptrdiff_t>(begin), all.end()};
}

/// One run; the booking becomes what it has to be afterwards. Gives the settings file afterwards.
std::wstring RehearseByTheRules(BookingModel& booking, const ModelSettings& settings,
                                const ModelAgent& agent, const std::wstring& ini) {
  practice::RehearsalScene scene;
  scene.booking = booking.AsBooking();
  scene.ini = ini;
  scene.decimal = settings.decimal;
  WritingRules rules(booking, settings, agent);
  scene.agent = rules.Read();
  const bool isList = booking.fares.size() > 1;
  const Lines expected = rules.Write();
  const auto outcome = RehearseInAgreement(scene);
  EXPECT_EQ(EntriesBehind(outcome.EntryTexts(), isList), expected);
  EXPECT_EQ(common::ToUtf8(common::Replace(outcome.pnrAfter, L"\r\n", L"\n")),
            common::ToUtf8(booking.AsDisplay()));
  if (testing::Test::HasFailure()) {
    ADD_FAILURE() << common::ToUtf8(scene.booking) << common::ToUtf8(scene.ini)
                  << common::ToUtf8(scene.agent);
  }
  return outcome.iniAfter;
}

TEST(WritingProperty, TheHostHoldsWhatTheRulesAskForAfterOneRunAndAfterASecondOne) {
  for (unsigned seed = 1; seed <= kBookings && !HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    Chance chance(seed);
    BookingModel booking = BookingBy(chance);
    const ModelSettings settings = SettingsBy(chance);
    const std::wstring ini = RehearseByTheRules(
        booking, settings, AgentBy(chance, booking, settings.sendBOD, HoldsPWCT(booking)),
        settings.AsIni());
    if (HasFailure()) return;
    const ModelAgent second = AgentBy(chance, booking, settings.sendBOD, true);
    RehearseByTheRules(booking, settings, second, ini);
  }
}

}  // namespace
}  // namespace run
