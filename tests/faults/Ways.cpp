#include "tests/faults/Ways.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <random>
#include <string>

namespace faults {

using hostlib::Value;

namespace {

constexpr std::wstring_view kNames[] = {
    L"an error with a number",
    L"an error without a number",
    L"an error, and no reporter",
    L"the library gone",
    L"the library replaced",
    L"the session lost",
    L"the answer lost",
    L"an empty text",
    L"random characters",
    L"100,000 random characters",
    L"blanks",
    L"a wrong type",
    L"a missing key",
    L"no object",
    L"a False flag",
    L"a True flag",
    L"a huge number",
    L"a negative number",
    L"an empty array",
    L"an array of random texts",
    L"an array from another index on",
};

// The same in every run: a case must fail again when it is looked at again.
std::wstring RandomText(std::size_t length) {
  std::mt19937 random(4711);
  std::wstring text(length, L' ');
  for (wchar_t& character : text) character = static_cast<wchar_t>(random() % 256);
  return text;
}

const std::wstring& Random() {
  static const std::wstring kText = RandomText(60);
  return kText;
}

const std::wstring& Huge() {
  static const std::wstring kText = RandomText(100000);
  return kText;
}

template <typename T>
hostlib::Array<T> Shifted(hostlib::Array<T> array) {
  array.lowerBound += 1000;
  return array;
}

Value WithRandomRows(const Value& answer) {
  if (const auto* texts = answer.If<hostlib::TextArray>()) {
    hostlib::TextArray rows = *texts;
    for (std::wstring& row : rows.items) row = Random();
    return rows;
  }
  if (const auto* integers = answer.If<hostlib::IntegerArray>()) {
    hostlib::IntegerArray rows = *integers;
    for (std::int16_t& row : rows.items) row = std::numeric_limits<std::int16_t>::min();
    return rows;
  }
  hostlib::DoubleArray rows = *answer.If<hostlib::DoubleArray>();
  for (double& row : rows.items) row = std::numeric_limits<double>::max();
  return rows;
}

Value WithoutRows(const Value& answer) {
  if (answer.If<hostlib::IntegerArray>() != nullptr) return hostlib::IntegerArray();
  if (answer.If<hostlib::DoubleArray>() != nullptr) return hostlib::DoubleArray();
  return hostlib::TextArray();
}

Value FromAnotherIndexOn(const Value& answer) {
  if (const auto* rows = answer.If<hostlib::TextArray>()) return Shifted(*rows);
  if (const auto* rows = answer.If<hostlib::IntegerArray>()) return Shifted(*rows);
  return Shifted(*answer.If<hostlib::DoubleArray>());
}

Value OfWrongType(const Value& answer) {
  if (answer.If<std::wstring>() != nullptr) return hostlib::IntegerArray{{1, 2}};
  return Value(L"no value of this kind");
}

void AddTextWays(std::vector<Way>& ways) {
  for (const Way way : {Way::kEmptyText, Way::kRandomText, Way::kHugeText, Way::kBlanks}) {
    ways.push_back(way);
  }
}

}  // namespace

std::wstring_view NameOf(Way way) { return kNames[static_cast<std::size_t>(way)]; }

bool IsError(Way way) { return way <= Way::kAnswerLost; }

std::vector<Way> WaysOf(const CallSite& site) {
  std::vector<Way> ways = {Way::kErrorWithNumber, Way::kErrorWithoutNumber,
                           Way::kErrorAndNoReporter, Way::kLibraryGone, Way::kLibraryReplaced};
  if (site.isSession) {
    ways.push_back(Way::kSessionLost);
    if (!site.isCreation) ways.push_back(Way::kAnswerLost);
  }
  if (site.isCreation) return ways;
  if (site.answersObject) {
    ways.insert(ways.end(), {Way::kNoObject, Way::kWrongType});
  } else if (const auto* flag = site.answer.If<bool>()) {
    ways.insert(ways.end(), {*flag ? Way::kFalseFlag : Way::kTrueFlag, Way::kWrongType});
  } else if (site.answer.If<std::wstring>() != nullptr) {
    // What is read from a bag goes through ToText: there its texts are spoilt, once.
    if (!site.isBagValue) AddTextWays(ways);
    ways.push_back(Way::kWrongType);
  } else if (site.answer.IsArray()) {
    ways.insert(ways.end(),
                {Way::kEmptyArray, Way::kRandomArray, Way::kShiftedArray, Way::kWrongType});
  } else if (!site.answer.IsEmpty()) {
    ways.insert(ways.end(),
                {Way::kHugeNumber, Way::kNegativeNumber, Way::kRandomText, Way::kWrongType});
  }
  if (site.isBagValue && !(site.answer.IsEmpty() && !site.answersObject)) {
    ways.push_back(Way::kMissingKey);
  }
  return ways;
}

Value Spoilt(Way way, const Value& answer) {
  switch (way) {
    case Way::kEmptyText:
      return Value(L"");
    case Way::kRandomText:
      return Value(Random());
    case Way::kHugeText:
      return Value(Huge());
    case Way::kBlanks:
      return Value(L"          ");
    case Way::kWrongType:
      return OfWrongType(answer);
    case Way::kMissingKey:
      return Value();
    case Way::kNoObject:
      return Value(hostlib::ObjectPtr());
    case Way::kFalseFlag:
      return Value(false);
    case Way::kTrueFlag:
      return Value(true);
    case Way::kHugeNumber:
      return Value(std::int16_t{32767});
    case Way::kNegativeNumber:
      return Value(std::int16_t{-1});
    case Way::kEmptyArray:
      return WithoutRows(answer);
    case Way::kRandomArray:
      return WithRandomRows(answer);
    case Way::kShiftedArray:
      return FromAnotherIndexOn(answer);
    default:
      return answer;
  }
}

}  // namespace faults
