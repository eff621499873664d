#include "practice/host/FareEntries.h"

#include <algorithm>
#include <set>

#include "common/Text.h"
#include "practice/host/AssociationText.h"
#include "practice/host/Syntax.h"

namespace practice {
namespace {

using namespace syntax;

struct Field {
  std::wstring name;
  std::wstring value;
};

Field FieldIn(const std::wstring& piece) {
  const std::size_t blank = piece.find(L' ');
  if (blank == piece.npos) return {piece, {}};
  return {piece.substr(0, blank), piece.substr(blank + 1)};
}

// The fields between commas, each once unless it is a tax.
std::vector<Field> FieldsIn(const std::wstring& text) {
  std::vector<Field> fields;
  std::set<std::wstring> seen;
  for (const std::wstring& piece : Split(text, L',')) {
    fields.push_back(FieldIn(piece));
    const std::wstring& name = fields.back().name;
    if (!seen.insert(name).second && name != L"TAX") throw Refused{name + L" IS THERE TWICE"};
  }
  return fields;
}

void Keep(std::wstring& place, const Field& field, bool holds) {
  if (!holds || field.value.empty()) throw Refused{field.name + L": " + field.value + L"?"};
  place = field.value;
}

bool IsPrintable(const std::wstring& text) {
  return text.find_first_of(L"[];") == text.npos &&
         std::all_of(text.begin(), text.end(), [](wchar_t c) { return c >= L' '; });
}

void CheckFlag(const Field& field) {
  if (!field.value.empty()) throw Refused{field.name + L" TAKES NO VALUE"};
}

void KeepTax(Tst& tst, const Field& field) {
  tst.taxes.emplace_back();
  Keep(tst.taxes.back(), field, IsTax(field.value));
}

bool IsIndicator(std::wstring_view text) { return common::Like(text, L"[A-Z]"); }
bool IsFare(std::wstring_view text) { return IsAmount(text) || text == L"NOFARE"; }

void KeepField(Tst& tst, const Field& field) {
  const std::wstring& name = field.name;
  const std::wstring& value = field.value;
  const bool printable = IsPrintable(value);
  if (name == L"FARE") return Keep(tst.fare, field, IsFare(value));
  if (name == L"IND") return Keep(tst.indicator, field, IsIndicator(value));
  if (name == L"EQUIV") return Keep(tst.equivalent, field, IsAmount(value));
  if (name == L"TAX") return KeepTax(tst, field);
  if (name == L"XF") return Keep(tst.xf, field, IsAmount(value));
  if (name == L"TOTAL") return Keep(tst.total, field, IsAmount(value));
  if (name == L"CALC") return Keep(tst.calculation, field, printable);
  if (name == L"BASIS") return Keep(tst.basis, field, printable);
  if (name == L"SALES") return Keep(tst.sales, field, common::Like(value, L"S[A-Z][A-Z][A-Z]"));
  if (name == L"NVA") return Keep(tst.notValidAfter, field, IsDate(value));
  if (name == L"FOP") return Keep(tst.payment, field, printable);
  if (name == L"REISSUE") {
    CheckFlag(field);
    tst.reissue = true;
  } else if (name == L"PTA") {
    CheckFlag(field);
    tst.pta = true;
  } else {
    throw Refused{L"NO FIELD " + name + L" IN A TST"};
  }
}

void KeepField(Tsm& tsm, const Field& field) {
  const std::wstring& value = field.value;
  if (field.name == L"FEE") return Keep(tsm.fee, field, IsDecimal(value));
  if (field.name == L"AMOUNT") return Keep(tsm.amount, field, IsAmount(value));
  if (field.name == L"FOP") return Keep(tsm.payment, field, IsPrintable(value));
  if (field.name == L"R") return Keep(tsm.r, field, IsPrintable(value));
  if (field.name == L"L") return Keep(tsm.l, field, IsPrintable(value));
  throw Refused{L"NO FIELD " + field.name + L" IN A TSM"};
}

template <typename Record>
int NextNumber(const std::vector<Record>& records) {
  if (records.size() == kMostFares) throw Refused{L"THE PNR IS FULL"};
  return records.empty() ? 1 : records.back().number + 1;
}

void UpdateHead(Tst& tst, const std::vector<std::wstring>& words) {
  if (words.size() == 2) return;
  if (words.size() != 3 || words[2] != L"PTA") throw Refused{L"TU: NUMBER, PTA"};
  tst.pta = true;
}

// FARE F SEK1000 [EQUIV NOK900] [TAX SEK120XT SEK40YQ]
void UpdateFare(Tst& tst, const std::vector<std::wstring>& words) {
  if (words.size() < 3 || !IsIndicator(words[1]) || !IsFare(words[2])) {
    throw Refused{L"FARE: INDICATOR, AMOUNT"};
  }
  tst.indicator = words[1];
  tst.fare = words[2];
  tst.equivalent.clear();
  tst.taxes.clear();
  std::size_t next = 3;
  if (next + 1 < words.size() && words[next] == L"EQUIV") {
    Keep(tst.equivalent, {L"EQUIV", words[next + 1]}, IsAmount(words[next + 1]));
    next += 2;
  }
  if (next == words.size()) return;
  if (words[next] != L"TAX" || next + 1 == words.size()) throw Refused{L"FARE: EQUIV, TAX"};
  while (++next < words.size()) KeepTax(tst, {L"TAX", words[next]});
}

void UpdatePiece(Tst& tst, const std::wstring& piece) {
  const std::vector<std::wstring> words = Words(piece);
  const std::wstring code = words.empty() ? std::wstring() : words[0];
  if (code == L"FARE") return UpdateFare(tst, words);
  if (code == L"NVA" && words.size() == 2) {
    return Keep(tst.notValidAfter, {L"NVA", words[1]}, IsDate(words[1]));
  }
  if (code == L"C+PD" && words.size() == 3 && words[1] == L"XF") {
    return Keep(tst.xf, {L"XF", words[2]}, IsAmount(words[2]));
  }
  throw Refused{L"NO PIECE " + piece + L" IN A TST UPDATE"};
}

}  // namespace

void CreateTst(Pnr& pnr, std::wstring text) {
  Tst tst;
  tst.number = NextNumber(pnr.tsts);
  if (auto association = TakeAssociation(pnr, text)) tst.association = std::move(*association);
  for (const Field& field : FieldsIn(text)) KeepField(tst, field);
  if (tst.fare.empty()) throw Refused{L"A TST WANTS A FARE"};
  pnr.tsts.push_back(std::move(tst));
}

void CreateTsm(Pnr& pnr, std::wstring text) {
  Tsm tsm;
  tsm.number = NextNumber(pnr.tsms);
  const auto association = TakeAssociation(pnr, text);
  if (!association || association->passengers.size() != 1) {
    throw Refused{L"A TSM WANTS ONE PASSENGER"};
  }
  tsm.passenger = association->passengers.front();
  tsm.l = LineNumbersText(pnr, association->segments);
  for (const Field& field : FieldsIn(text)) KeepField(tsm, field);
  if (tsm.amount.empty()) throw Refused{L"A TSM WANTS AN AMOUNT"};
  pnr.tsms.push_back(std::move(tsm));
}

int UpdateTstBy(Pnr& pnr, std::wstring_view entry) {
  const std::vector<std::wstring> pieces = Split(entry, L'/');
  const std::vector<std::wstring> words = Words(pieces[0]);
  const int number = words.size() < 2 ? -1 : NumberIn(words[1]);
  if (number < 0) throw Refused{L"TU WANTS A TST NUMBER"};
  Tst& tst = pnr.TstAt(number);
  UpdateHead(tst, words);
  std::set<std::wstring> seen;
  for (std::size_t i = 1; i < pieces.size(); ++i) {
    if (!seen.insert(pieces[i].substr(0, pieces[i].find(L' '))).second) {
      throw Refused{pieces[i] + L" IS THERE TWICE"};
    }
    UpdatePiece(tst, pieces[i]);
  }
  return number;
}

}  // namespace practice
