#pragma once

#include <cstdint>
#include <string_view>

namespace common {

/// The title of every message box that says nothing else: two blanks before, one after.
inline constexpr std::wstring_view kTitle = L"  PTA Script ";

/// What a host refusal adds to the failing procedure's own first line.
inline constexpr std::wstring_view kRefusalText =
    L"\r\rCorvane Central System gave an incorrect response to the last transaction."
    L"\rPlease verify the response given and correct if possible, or contact your help desk. "
    L"\rThe program can not continue.";

/// Error numbers are this base plus the procedure's own small decimal number.
inline constexpr std::uint32_t kErrorBase = 0x80040000;

constexpr std::int32_t ErrorNumber(int number) {
  return static_cast<std::int32_t>(kErrorBase + static_cast<std::uint32_t>(number));
}

// Message box styles: an icon, and the buttons added to it.
inline constexpr int kPlain = 0;
inline constexpr int kCritical = 16;
inline constexpr int kExclamation = 48;
inline constexpr int kInformation = 64;
inline constexpr int kOkCancel = 1;
inline constexpr int kRetryCancel = 5;

// Message box answers.
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kRetry = 4;

}  // namespace common
