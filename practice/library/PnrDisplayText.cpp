#include "practice/library/PnrDisplayText.h"

#include "practice/host/Syntax.h"

namespace practice {
namespace {

// "1.SMITH/JOHN MR" or "12 RM TEXT [P1]"
std::optional<PnrLine> ReadLine(const std::wstring& whole) {
  const std::size_t digits = whole.find_first_not_of(L"0123456789");
  if (digits == 0 || digits == whole.npos) return std::nullopt;
  PnrLine line;
  line.number = whole.substr(0, digits);
  line.whole = whole;
  if (whole[digits] == L'.') {
    line.code = L"NM";
    line.text = whole;
    return line;
  }
  const std::size_t code = digits + 1;
  const std::size_t blank = whole.find(L' ', code);
  if (whole[digits] != L' ' || blank == whole.npos || blank == code) return std::nullopt;
  line.code = whole.substr(code, blank - code);
  std::wstring text = whole.substr(blank);
  line.association = display_lines::TakeAssociationWords(text);
  if (text.empty()) return std::nullopt;
  line.text = text.substr(1);
  return line;
}

}  // namespace

std::vector<const PnrLine*> PnrDisplayText::All(std::wstring_view code) const {
  std::vector<const PnrLine*> all;
  for (const PnrLine& line : lines) {
    if (line.code == code) all.push_back(&line);
  }
  return all;
}

std::optional<PnrDisplayText> ReadPnrDisplay(std::wstring_view answer) {
  const auto lines = display_lines::DisplayIn(answer, L"PNR ", L"END OF PNR");
  if (!lines) return std::nullopt;
  const std::vector<std::wstring> head = syntax::Words(lines->front());
  if (head.size() != 4 || head[2] != L"OFFICE") return std::nullopt;
  PnrDisplayText display;
  if (head[1] != L"------") display.locator = head[1];
  display.office = head[3];
  for (std::size_t i = 1; i < lines->size(); ++i) {
    auto line = ReadLine((*lines)[i]);
    if (!line) return std::nullopt;
    display.lines.push_back(std::move(*line));
  }
  return display;
}

}  // namespace practice
