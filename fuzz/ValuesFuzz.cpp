#include <cstdlib>

#include "common/Numbers.h"
#include "common/RunTimeError.h"
#include "common/Text.h"
#include "fuzz/Input.h"
#include "hostlib/Object.h"

// A text as every kind of value that the library may mean by it: it converts, or fails in words.

namespace {

template <typename Convert>
void ConvertOrFail(Convert convert) {
  try {
    convert();
  } catch (const common::RunTimeError& error) {
    fuzz::Require(!error.description().empty(), "a failure says why");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text = fuzz::TextOf(data, size);
  const hostlib::Value value(text);
  ConvertOrFail([&] { value.Integer(); });
  ConvertOrFail([&] { value.Long(); });
  ConvertOrFail([&] { value.Flag(); });
  ConvertOrFail([&] { hostlib::TextsOf(value); });
  ConvertOrFail([&] { value.AsObject(); });
  fuzz::Require(value.Text() == text, "a text is itself");
  hostlib::Describe(value);
  ConvertOrFail([&] {
    const double number = common::ToDouble(text, L".");
    const std::wstring written = common::HostNumberText(number);
    const double again = common::ToDouble(written, L".");
    fuzz::Require(common::HostNumberText(again) == written, "a written number is read again");
    fuzz::Require(again == std::strtod(common::ToUtf8(written).c_str(), nullptr),
                  "digits are read as the C library reads them");
    common::ToInteger(number);
  });
  return 0;
}
