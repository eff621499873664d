#include "practice/library/IniText.h"

#include <algorithm>

#include "common/Text.h"

namespace practice {
namespace {

constexpr std::wstring_view kBlanks = L" \t";
constexpr std::wstring_view kLineEnds = L"\r\n";

std::wstring_view Stripped(std::wstring_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::wstring_view Unquoted(std::wstring_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == L'"' || value.front() == L'\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// In quotes when it would otherwise be read as something else.
std::wstring WrittenForm(std::wstring_view value) {
  if (Unquoted(Stripped(value)) == value) return std::wstring(value);
  return L'"' + std::wstring(value) + L'"';
}

bool SameName(std::wstring_view one, std::wstring_view other) {
  return common::UpperCase(Stripped(one)) == common::UpperCase(Stripped(other));
}

}  // namespace

IniText::Place IniText::Find(std::wstring_view section, std::wstring_view key) const {
  const std::wstring_view text = text_;
  Place place;
  bool inside = false;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t end = std::min(text.find_first_of(kLineEnds, from), text.size());
    const std::wstring_view line = text.substr(from, end - from);
    const std::wstring_view stripped = Stripped(line);
    if (!stripped.empty() && stripped.front() == L'[') {
      if (inside) return place;
      const std::size_t close = stripped.find(L']');
      inside = close != stripped.npos && SameName(stripped.substr(1, close - 1), section);
      place.sectionFound = inside;
    }
    if (inside && !stripped.empty()) place.sectionEnd = end;
    const std::size_t equals = line.find(L'=');
    if (inside && equals != line.npos && stripped.front() != L';' &&
        SameName(line.substr(0, equals), key)) {
      place.keyFound = true;
      place.valueStart = from + equals + 1;
      place.valueEnd = end;
      return place;
    }
    from = end + 1;
  }
  return place;
}

std::wstring IniText::Read(std::wstring_view section, std::wstring_view key) const {
  const Place place = Find(section, key);
  if (!place.keyFound) return {};
  const std::wstring_view value =
      std::wstring_view(text_).substr(place.valueStart, place.valueEnd - place.valueStart);
  return std::wstring(Unquoted(Stripped(value)));
}

void IniText::Write(std::wstring_view section, std::wstring_view key, std::wstring_view value) {
  const Place place = Find(section, key);
  const std::wstring written = WrittenForm(value);
  const std::wstring line = std::wstring(key) + L"=" + written;
  if (place.keyFound) {
    text_.replace(place.valueStart, place.valueEnd - place.valueStart, written);
  } else if (place.sectionFound) {
    text_.insert(place.sectionEnd, L"\r\n" + line);
  } else {
    if (!text_.empty() && text_.back() != L'\n') text_ += L"\r\n";
    text_ += L"[" + std::wstring(section) + L"]\r\n" + line + L"\r\n";
  }
}

}  // namespace practice
