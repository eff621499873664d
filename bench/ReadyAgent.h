#pragma once

#include "ui/controls/WindowlessDesktop.h"

namespace bench {

/// A desktop on which the agent is always ready: every box is answered with OK, the first TSTs of
/// the list are chosen, and the PTA dialog's OK is pressed as it comes. It takes next to no time of
/// its own.
class ReadyAgent : public ui::WindowlessDesktop {
 public:
  explicit ReadyAgent(int chosen) : chosen_(static_cast<std::size_t>(chosen)) {}

  void Show(ui::Form& form) override;
  void ShowModal(ui::Form& form) override;
  void Run() override;
  int ShowBox(std::wstring_view text, int style, std::wstring_view title) override;

  /// The text of the box that was shown last; "" when there was none.
  const std::wstring& lastBox() const { return lastBox_; }

 private:
  std::size_t chosen_;
  ui::Form* dialog_ = nullptr;
  std::wstring lastBox_;
};

}  // namespace bench
