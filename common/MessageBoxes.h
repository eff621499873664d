#pragma once

#include <string_view>

namespace common {

/// The program's own message boxes.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows a box and waits for the answer: kOk, kRetry or kCancel. Closing a box with a Cancel is
  /// kCancel. `style` is an icon, plus kOkCancel or kRetryCancel for two buttons. An empty title is
  /// the application's default title. Lines break at "\r" and "\r\n".
  virtual int ShowBox(std::wstring_view text, int style, std::wstring_view title) = 0;
};

}  // namespace common
