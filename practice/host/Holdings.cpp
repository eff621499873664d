#include "practice/host/Holdings.h"

namespace practice {
namespace {

std::wstring Joined(const std::vector<std::wstring>& lines, std::wstring_view otherwise) {
  std::wstring text;
  for (const std::wstring& line : lines) {
    if (!text.empty()) text += L"\r\n";
    text += line;
  }
  return lines.empty() ? std::wstring(otherwise) : text;
}

std::wstring StateText(Queues::State state) {
  if (state == Queues::State::kClosed) return L"CLOSED";
  return state == Queues::State::kOn ? L"ON" : L"OFF";
}

}  // namespace

std::wstring PrintedText(const Host& host) {
  std::vector<std::wstring> copies;
  for (const std::wstring& copy : host.Printed()) {
    copies.push_back(L"COPY " + std::to_wstring(copies.size() + 1));
    copies.back() += L"\r\n" + copy;
  }
  return Joined(copies, L"NOTHING PRINTED");
}

std::wstring BackOfficeText(const Host& host) {
  return Joined(host.SentToBackOffice(), L"NOTHING SENT");
}

std::wstring QueuesText(const Host& host) {
  std::vector<std::wstring> lines;
  for (const Queues::Place& place : host.queues().Known()) {
    std::wstring line = L"QUEUE " + Queues::PlaceText(place) + L", " +
                        StateText(host.queues().StateOf(place)) + L":";
    const std::vector<std::wstring> locators = host.queues().At(place);
    for (const std::wstring& locator : locators) line += L" " + locator;
    lines.push_back(locators.empty() ? line + L" EMPTY" : line);
  }
  return Joined(lines, L"ALL QUEUES ON AND EMPTY");
}

}  // namespace practice
