#include "fuzz/Input.h"
#include "practice/library/IniText.h"

// Section, key and value in the first three lines, the file behind them: any file can be read, and
// a value that was written is read again, while another key stays as it was.

namespace {

bool IsName(const std::wstring& name) {
  return !name.empty() && name.find_first_of(L"[]=;\r\n\t ") == name.npos;
}

bool IsValue(const std::wstring& value) { return value.find_first_of(L"\r\n") == value.npos; }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::wstring text = fuzz::TextOf(data, size);
  const std::vector<std::wstring> lines = fuzz::LinesOf(text);
  const std::wstring section = fuzz::Line(lines, 0);
  const std::wstring key = fuzz::Line(lines, 1);
  const std::wstring value = fuzz::Line(lines, 2);
  practice::IniText file(text);
  file.Read(section, key);
  if (!IsName(section) || !IsName(key) || !IsValue(value)) return 0;
  const std::wstring other = file.Read(L"Settings", L"CityCode");
  file.Write(section, key, value);
  fuzz::Require(file.Read(section, key) == value, "a written value is read again");
  const bool isOther =
      common::UpperCase(section) == L"SETTINGS" && common::UpperCase(key) == L"CITYCODE";
  fuzz::Require(isOther || file.Read(L"Settings", L"CityCode") == other, "another key stays");
  return 0;
}
