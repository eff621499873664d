#pragma once

#include <string>
#include <string_view>

namespace practice {

/// The text of an INI file: sections in square brackets, one key=value a line, ";" begins a
/// comment line. Names are compared without regard to case; blanks and tabs around names and
/// values do not count; one matching pair of quotes around a value is stripped.
class IniText {
 public:
  explicit IniText(std::wstring text = {}) : text_(std::move(text)) {}

  /// "" when the section or the key is missing. The first of several wins.
  std::wstring Read(std::wstring_view section, std::wstring_view key) const;
  /// Changes the key's line alone, or adds it at the end of its section, or adds both at the end;
  /// everything else stays as it is, character by character. A value that begins or ends with a
  /// blank, or stands in quotes, is written in quotes: it is read as it was.
  void Write(std::wstring_view section, std::wstring_view key, std::wstring_view value);

  const std::wstring& text() const { return text_; }

 private:
  /// Where a key's line stands, or would be added.
  struct Place {
    bool sectionFound = false;
    bool keyFound = false;
    std::size_t valueStart = 0;  ///< of the found key
    std::size_t valueEnd = 0;    ///< before the line end
    std::size_t sectionEnd = 0;  ///< behind the section's last line with anything on it
  };
  Place Find(std::wstring_view section, std::wstring_view key) const;

  std::wstring text_;
};

}  // namespace practice
