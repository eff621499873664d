#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The small forms that entries and displays are made of.
namespace practice::syntax {

/// Always at least one piece; a delimiter at the end gives an empty last one.
std::vector<std::wstring> Split(std::wstring_view text, wchar_t delimiter);
/// The pieces between blanks, none of them empty.
std::vector<std::wstring> Words(std::wstring_view text);
bool StartsWith(std::wstring_view text, std::wstring_view start);
std::wstring Join(const std::vector<std::wstring>& pieces, std::wstring_view delimiter);

/// 1 to 9 digits.
bool IsNumber(std::wstring_view text);
/// The number that the text is, -1 when it is none.
int NumberIn(std::wstring_view text);
/// Digits with at most one "." inside them.
bool IsDecimal(std::wstring_view text);
/// SEK1000 or SEK1000.50
bool IsAmount(std::wstring_view text);
/// An amount and a tax code of two to four letters: SEK120XT
bool IsTax(std::wstring_view text);
/// 15MAR07, a day that exists.
bool IsDate(std::wstring_view text);
/// ARNAG2100
bool IsOffice(std::wstring_view text);
bool IsCity(std::wstring_view text);
bool IsAirline(std::wstring_view text);
/// SK1234
bool IsFlight(std::wstring_view text);
/// 117-4012345678
bool IsDocument(std::wstring_view text);
/// Six capital letters and digits.
bool IsLocator(std::wstring_view text);
/// SMITH/JOHN MR
bool IsPersonName(std::wstring_view text);

/// The numbers of a list such as 2-4,7 or 7,3,3: each once, in ascending order, since agents write
/// them in the order of their fares. Nothing when it is no such list.
std::optional<std::vector<int>> ReadNumbers(std::wstring_view text);
/// The display's form: runs of two and more are shortened, 2-4,7.
std::wstring NumbersText(std::vector<int> numbers);

}  // namespace practice::syntax
