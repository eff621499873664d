#include "practice/host/Queues.h"

#include <algorithm>

#include "practice/host/Pnr.h"
#include "practice/host/Syntax.h"

namespace practice {
namespace {

constexpr int kHighestQueue = 999;

bool IsQueueNumber(std::wstring_view text) {
  const int number = syntax::NumberIn(text);
  return number >= 0 && number <= kHighestQueue;
}

}  // namespace

Queues::Place Queues::ReadPlace(const std::vector<std::wstring>& words) {
  const bool withCategory = words.size() == 5 && words[1] == L"CAT";
  if (!withCategory && words.size() != 3) throw Refused{L"QUEUE: 80 [CAT 1] AT OFFICE"};
  Place place;
  if (!IsQueueNumber(words[0])) throw Refused{L"NO QUEUE " + words[0]};
  place.number = syntax::NumberIn(words[0]);
  if (withCategory) {
    if (!IsQueueNumber(words[2])) throw Refused{L"NO CATEGORY " + words[2]};
    place.category = std::to_wstring(syntax::NumberIn(words[2]));
  }
  if (words[words.size() - 2] != L"AT") throw Refused{L"QUEUE: 80 [CAT 1] AT OFFICE"};
  if (!syntax::IsOffice(words.back())) throw Refused{L"NO OFFICE " + words.back()};
  place.office = words.back();
  return place;
}

std::wstring Queues::PlaceText(const Place& place) {
  return std::to_wstring(place.number) +
         (place.category.empty() ? L"" : L" CAT " + place.category) + L" AT " + place.office;
}

void Queues::OpenAll() { queues_.clear(); }

Queues::State Queues::StateOf(const Place& place) const {
  const auto queue = queues_.find(place);
  return queue == queues_.end() ? State::kOn : queue->second.state;
}

bool Queues::Put(const Place& place, std::wstring_view locator) {
  std::vector<std::wstring>& locators = queues_[place].locators;
  if (std::find(locators.begin(), locators.end(), locator) != locators.end()) return false;
  locators.emplace_back(locator);
  return true;
}

std::vector<Queues::Place> Queues::Known() const {
  std::vector<Place> places;
  for (const auto& [place, queue] : queues_) places.push_back(place);
  return places;
}

std::vector<std::wstring> Queues::At(const Place& place) const {
  const auto queue = queues_.find(place);
  return queue == queues_.end() ? std::vector<std::wstring>() : queue->second.locators;
}

}  // namespace practice
