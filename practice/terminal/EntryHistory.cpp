#include "practice/terminal/EntryHistory.h"

namespace practice::terminal {

void EntryHistory::Add(std::wstring entry) {
  if (entries_.empty() || entries_.back() != entry) entries_.push_back(std::move(entry));
  at_ = entries_.size();
}

std::wstring EntryHistory::Earlier() {
  if (at_ > 0) --at_;
  return entries_.empty() ? std::wstring() : entries_[at_];
}

std::wstring EntryHistory::Later() {
  if (at_ < entries_.size()) ++at_;
  return at_ < entries_.size() ? entries_[at_] : std::wstring();
}

}  // namespace practice::terminal
