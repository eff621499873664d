#include "hostlib/ValueView.h"

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "hostlib/Object.h"

namespace hostlib {
namespace {

/// Lends each kind of a value as itself, or by its address.
struct Lender {
  template <typename T>
  ValueView operator()(const T& content) const {
    return content;
  }
  ValueView operator()(std::monostate) const { return {}; }
};

// Every kind that a count or number may come as; a text is read in the host's form.
double NumberIn(const ValueView& value) {
  if (value.IsEmpty()) return 0;
  if (const auto* integer = value.If<std::int16_t>()) return *integer;
  if (const auto* integer = value.If<std::int32_t>()) return *integer;
  if (const auto* number = value.If<double>()) return *number;
  if (const auto* text = value.If<std::wstring_view>()) {
    return text->empty() ? 0 : common::ToDouble(*text, L".");
  }
  value.Mismatch(L"a number");
}

std::wstring Quoted(std::wstring_view text) { return L"\"" + std::wstring(text) + L"\""; }
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

}  // namespace

ValueView::ValueView(const Value& value) : ValueView(std::visit(Lender(), value.content())) {}

bool ValueView::IsArray() const {
  return If<TextArray>() != nullptr || If<IntegerArray>() != nullptr ||
         If<DoubleArray>() != nullptr;
}

std::wstring ValueView::Text() const {
  if (IsEmpty()) return {};
  if (const auto* text = If<std::wstring_view>()) return std::wstring(*text);
  Mismatch(L"a text");
}

bool ValueView::Flag() const {
  if (IsEmpty()) return false;
  if (const auto* flag = If<bool>()) return *flag;
  Mismatch(L"a boolean");
}

std::int16_t ValueView::Integer() const { return common::ToInteger(NumberIn(*this)); }

std::int32_t ValueView::Long() const { return common::ToLong(NumberIn(*this)); }

ObjectPtr ValueView::AsObject() const {
  const auto* object = If<ObjectPtr>();
  if (object == nullptr || *object == nullptr) Mismatch(L"an object");
  return *object;
}

std::wstring_view ValueView::Kind() const {
  // In the order of the alternatives.
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
  static_assert(std::size(kKinds) == std::variant_size_v<Content>);
  return kKinds[content_.index()];
}

void ValueView::Mismatch(std::wstring_view wanted) const {
  throw common::TypeMismatch(std::wstring(Kind()) + L" instead of " + std::wstring(wanted));
}

std::wstring Describe(const ValueView& value) {
  if (value.IsEmpty()) return L"Empty";
  if (value.IsMissing()) return L"missing";
  if (const auto* flag = value.If<bool>()) return *flag ? L"True" : L"False";
  if (const auto* integer = value.If<std::int16_t>()) return common::NumberText(*integer);
  if (const auto* integer = value.If<std::int32_t>()) return common::NumberText(*integer);
  if (const auto* number = value.If<double>()) return Quoted(*number);
  if (const auto* text = value.If<std::wstring_view>()) return Quoted(*text);
  if (const auto* array = value.If<TextArray>()) return Rows(*array);
  if (const auto* array = value.If<IntegerArray>()) return Rows(*array);
  if (const auto* array = value.If<DoubleArray>()) return Rows(*array);
  const auto* object = value.If<ObjectPtr>();
  if (*object == nullptr) return L"Nothing";
  return L"<" + std::wstring((*object)->ClassName()) + L">";
}

}  // namespace hostlib
