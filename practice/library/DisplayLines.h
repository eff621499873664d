#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// How the library reads what the host sends: line by line, by what a line begins with.
namespace practice::display_lines {

/// The lines of the first display in an answer: from a line that begins with `start` to the line
/// `end`. Nothing when the answer does not begin so, or has no such end.
std::optional<std::vector<std::wstring>> DisplayIn(std::wstring_view answer,
                                                   std::wstring_view start, std::wstring_view end);

/// The first line, cut to what fits a message.
std::wstring FirstLine(std::wstring_view answer);

/// The text up to its first blank.
std::wstring FirstWord(std::wstring_view text);

/// What stands behind "LABEL " in the first line that begins so; "" when there is none.
std::wstring ValueOf(const std::vector<std::wstring>& lines, std::wstring_view label);
std::vector<std::wstring> ValuesOf(const std::vector<std::wstring>& lines, std::wstring_view label);
bool HasLine(const std::vector<std::wstring>& lines, std::wstring_view line);

/// The association that a line ends in, "[INF P1-2 S3]", as texts.
struct AssociationWords {
  std::wstring type;        ///< "", PAX or INF
  std::wstring passengers;  ///< "1-2"
  std::wstring segments;
};
/// Takes the association and the blank before it off the line, wherever in the line it stands.
AssociationWords TakeAssociationWords(std::wstring& line);

}  // namespace practice::display_lines
