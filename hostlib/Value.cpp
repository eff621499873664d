#include "hostlib/Value.h"

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "hostlib/Object.h"

namespace hostlib {
namespace {

[[noreturn]] void Mismatch(const Value& value, std::wstring_view wanted) {
  throw common::TypeMismatch(std::wstring(value.Kind()) + L" instead of " + std::wstring(wanted));
}

// Every kind that a count or number may come as; a text is read in the host's form.
double NumberIn(const Value& value) {
  if (value.IsEmpty()) return 0;
  if (const auto* integer = value.If<std::int16_t>()) return *integer;
  if (const auto* integer = value.If<std::int32_t>()) return *integer;
  if (const auto* number = value.If<double>()) return *number;
  if (const auto* text = value.If<std::wstring>()) {
    return text->empty() ? 0 : common::ToDouble(*text, L".");
  }
  Mismatch(value, L"a number");
}

std::wstring Quoted(const std::wstring& text) { return L"\"" + text + L"\""; }
std::wstring Quoted(std::int16_t number) { return common::NumberText(number); }
std::wstring Quoted(double number) { return common::HostNumberText(number); }

template <typename T>
std::wstring Rows(const Array<T>& array) {
  std::wstring rows = L"[";
  for (std::size_t i = 0; i < array.items.size(); ++i) {
    if (i > 0) rows += L", ";
    rows += Quoted(array.items[i]);
  }
  rows += L"]";
  if (array.lowerBound != 0) rows += L" from " + common::NumberText(array.lowerBound);
  return rows;
}

template <typename ArrayKind>
ArrayKind RowsOf(Value value, std::wstring_view wanted) {
  if (value.IsObject()) value = value.AsObject()->Call(kDefaultMember, {});
  if (value.IsEmpty()) return {};
  if (auto* array = value.If<ArrayKind>()) return std::move(*array);
  Mismatch(value, wanted);
}

}  // namespace

bool Value::IsArray() const {
  return If<TextArray>() != nullptr || If<IntegerArray>() != nullptr ||
         If<DoubleArray>() != nullptr;
}

std::wstring Value::Text() const& { return Value(*this).Text(); }

std::wstring Value::Text() && {
  if (IsEmpty()) return {};
  if (auto* text = If<std::wstring>()) return std::move(*text);
  Mismatch(*this, L"a text");
}

bool Value::Flag() const {
  if (IsEmpty()) return false;
  if (const auto* flag = If<bool>()) return *flag;
  Mismatch(*this, L"a boolean");
}

std::int16_t Value::Integer() const { return common::ToInteger(NumberIn(*this)); }

std::int32_t Value::Long() const { return common::ToLong(NumberIn(*this)); }

ObjectPtr Value::AsObject() const {
  const auto* object = If<ObjectPtr>();
  if (object == nullptr || *object == nullptr) Mismatch(*this, L"an object");
  return *object;
}

std::wstring_view Value::Kind() const {
  static constexpr std::wstring_view kKinds[] = {L"nothing",
                                                 L"a missing argument",
                                                 L"a boolean",
                                                 L"a 16-bit integer",
                                                 L"a 32-bit integer",
                                                 L"a double",
                                                 L"a text",
                                                 L"an array of texts",
                                                 L"an array of integers",
                                                 L"an array of doubles",
                                                 L"an object"};
  return kKinds[content_.index()];
}

std::wstring Describe(const Value& value) {
  if (value.IsEmpty()) return L"Empty";
  if (value.IsMissing()) return L"missing";
  if (const auto* flag = value.If<bool>()) return *flag ? L"True" : L"False";
  if (const auto* integer = value.If<std::int16_t>()) return common::NumberText(*integer);
  if (const auto* integer = value.If<std::int32_t>()) return common::NumberText(*integer);
  if (const auto* number = value.If<double>()) return Quoted(*number);
  if (const auto* text = value.If<std::wstring>()) return Quoted(*text);
  if (const auto* array = value.If<TextArray>()) return Rows(*array);
  if (const auto* array = value.If<IntegerArray>()) return Rows(*array);
  if (const auto* array = value.If<DoubleArray>()) return Rows(*array);
  const auto* object = value.If<ObjectPtr>();
  if (*object == nullptr) return L"Nothing";
  return L"<" + std::wstring((*object)->ClassName()) + L">";
}

TextArray TextsOf(Value value) { return RowsOf<TextArray>(std::move(value), L"an array of texts"); }

IntegerArray IntegersOf(Value value) {
  return RowsOf<IntegerArray>(std::move(value), L"an array of integers");
}

DoubleArray DoublesOf(Value value) {
  return RowsOf<DoubleArray>(std::move(value), L"an array of doubles");
}

void LibraryError::Locate(std::wstring_view object, std::wstring_view operation) {
  if (!object_.empty()) return;
  object_ = object;
  operation_ = operation;
}

}  // namespace hostlib
