#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace practice {

/// The queues of all offices. Every queue is on until it is told otherwise.
class Queues {
 public:
  enum class State {
    kOn,      ///< takes PNRs, and they are worked on
    kOff,     ///< takes PNRs, which wait
    kClosed,  ///< takes none
  };
  struct Place {
    std::wstring office;
    int number = 0;
    std::wstring category;  ///< "" for none
    auto operator<=>(const Place&) const = default;
  };

  /// The place that the words name: 80 [CAT 1] AT STOSK08AA. Throws Refused.
  static Place ReadPlace(const std::vector<std::wstring>& words);
  static std::wstring PlaceText(const Place& place);

  void SetState(const Place& place, State state) { queues_[place].state = state; }
  /// Every queue is on, and empty.
  void OpenAll();
  State StateOf(const Place& place) const;
  /// False when the PNR is there already. The queue must not be closed.
  bool Put(const Place& place, std::wstring_view locator);
  /// The places that hold a PNR or were told a state, by office, number and category.
  std::vector<Place> Known() const;
  /// Record locators, in the order in which they came.
  std::vector<std::wstring> At(const Place& place) const;

 private:
  struct Queue {
    State state = State::kOn;
    std::vector<std::wstring> locators;
  };
  std::map<Place, Queue> queues_;
};

}  // namespace practice
