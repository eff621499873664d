#pragma once

#include <functional>
#include <optional>

#include "practice/library/Stores.h"

namespace practice {

/// How bytes are text and text is bytes.
struct TextCode {
  std::function<std::wstring(std::string_view)> decode;
  /// Nothing when a character cannot be written.
  std::function<std::optional<std::string>(std::wstring_view)> encode;
};

TextCode Utf8Code();

/// INI files on the disk, read and written without the system's help, by the rules of the Windows
/// profile functions.
///
/// A file that begins with FF FE is UTF-16. Any other is read in the code given; one that is not
/// of that code, byte for byte as Latin-1, so that what is not understood is at least not lost.
///
/// A write changes the line of its key, or adds what is missing at the end of the section or of
/// the file; every other byte stays. The new file is made beside the old one and takes its place
/// in one step, so that a reader never sees half of it.
class IniProfiles : public Profiles {
 public:
  explicit IniProfiles(TextCode code = Utf8Code()) : code_(std::move(code)) {}

  std::wstring Read(std::wstring_view path, std::wstring_view section,
                    std::wstring_view key) override;
  /// False, and the file is as it was, when it is read-only or in use, or when the names or the
  /// value cannot stand in such a file.
  bool Write(std::wstring_view path, std::wstring_view section, std::wstring_view key,
             std::wstring_view value) override;

 private:
  /// A file's text, and how it goes back to bytes.
  struct Content {
    std::string mark;
    std::wstring text;
    TextCode code;
  };
  Content ContentOf(const std::string& bytes) const;

  TextCode code_;
};

}  // namespace practice
