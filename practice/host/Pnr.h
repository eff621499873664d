#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace practice {

/// Why an entry is not taken.
struct Refused {
  std::wstring why;
};

/// The kinds of lines, in the order in which a PNR shows them.
enum class Kind {
  kName,
  kSegment,
  kMco,
  kTicketing,
  kAddress,
  kPayment,
  kCommission,
  kCarrier,
  kFare,
  kDocument,
  kFareOrder,
  kOption,
  kRemark,
  kService,
};

/// Which passengers and segments something is for; by the lines' identities, so that it stays right
/// when lines move. None means all.
struct Association {
  enum class Type { kNone, kAdult, kInfant };
  Type type = Type::kNone;
  std::vector<int> passengers;
  std::vector<int> segments;

  bool IsEmpty() const { return type == Type::kNone && passengers.empty() && segments.empty(); }
};

/// One numbered line: what stands after its code, and its association.
struct Element {
  int id = 0;
  Kind kind = Kind::kName;
  std::wstring text;
  Association association;
};

/// A stored fare.
struct Tst {
  int number = 0;
  Association association;  ///< kInfant: the infants of the passengers
  std::wstring fare;
  std::wstring indicator;
  std::wstring equivalent;
  std::vector<std::wstring> taxes;
  std::wstring xf;
  std::wstring total;
  std::wstring calculation;
  std::wstring basis;
  std::wstring sales;
  std::wstring notValidAfter;
  std::wstring payment;  ///< what the list shows; "" shows the PNR's FP
  bool reissue = false;
  bool pta = false;
};

/// A stored miscellaneous document.
struct Tsm {
  int number = 0;
  int passenger = 0;  ///< identity of the name line
  std::wstring r;
  std::wstring l;
  std::wstring amount;
  std::wstring payment;
  std::wstring fee;
};

struct Pnr {
  std::wstring locator;
  std::wstring office;  ///< the responsible one
  std::vector<Element> elements;
  std::vector<Tst> tsts;
  std::vector<Tsm> tsms;
  int lastId = 0;

  /// After the last line of its kind. Throws Refused when the PNR is full.
  void Add(Element element);
  /// Counted from 1. Throws Refused.
  Element& At(int number);
  /// 0 when there is no such line (any more).
  int NumberOf(int id) const;
  std::vector<int> Ids(Kind kind) const;
  std::vector<const Element*> All(Kind kind) const;
  /// Something is associated with the line.
  bool IsInUse(int id) const;
  Tst& TstAt(int number);
  Tsm& TsmAt(int number);
};

inline constexpr std::size_t kMostElements = 999;
inline constexpr std::size_t kMostNames = 99;
inline constexpr std::size_t kMostFares = 100;

/// The code that the lines of a kind begin with.
std::wstring_view CodeOf(Kind kind);
std::optional<Kind> KindOf(std::wstring_view code);

/// The passengers a fare is for: its own, or all (of those with an infant for an infant's fare).
std::vector<int> PassengersOf(const Pnr& pnr, const Tst& tst);
std::vector<const Element*> SegmentsOf(const Pnr& pnr, const Tst& tst);
/// The element of the kind that holds for the fare: the first associated one, else the first for
/// all; null when there is none.
const Element* LinkedElement(const Pnr& pnr, const Tst& tst, Kind kind);

}  // namespace practice
