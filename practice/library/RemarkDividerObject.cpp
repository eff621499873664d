#include "practice/host/ElementRules.h"
#include "practice/library/Objects.h"

namespace practice::objects {
namespace {

using hostlib::Arguments;
using hostlib::TextArray;
using hostlib::Value;

/// What every piece of a divided remark carries before and after its part of the text.
struct Frame {
  std::wstring before;  ///< "RM ", with "*" for a back-office remark
  std::wstring after;   ///< the association
};

Frame TakeFrame(std::wstring& text) {
  Frame frame;
  const std::size_t bracket = text.rfind(L" [");
  if (text.ends_with(L"]") && bracket != text.npos) {
    frame.after = text.substr(bracket);
    text.erase(bracket);
  }
  for (const std::wstring_view prefix : {L"RM ", L"*"}) {
    if (!text.starts_with(prefix)) continue;
    frame.before += prefix;
    text.erase(0, prefix.size());
  }
  return frame;
}

// Where the next piece ends: before the last blank that leaves it short enough, else in a word.
std::size_t CutAt(const std::wstring& text, std::size_t room) {
  if (text.size() <= room) return text.size();
  const std::size_t blank = text.rfind(L' ', room);
  return blank == text.npos || blank == 0 ? room : blank;
}

TextArray Divide(std::wstring text) {
  const Frame frame = TakeFrame(text);
  const std::size_t taken = frame.before.size() + frame.after.size();
  // Pieces without any of the text would never come to an end.
  if (taken >= kLongestRemark) RaiseFailure(kNoRoom, L"The association leaves the remark no room");
  const std::size_t room = kLongestRemark - taken;
  TextArray pieces;
  do {
    const std::size_t cut = CutAt(text, room);
    pieces.items.push_back(frame.before + text.substr(0, cut) + frame.after);
    text.erase(0, cut);
    if (text.starts_with(L" ")) text.erase(0, 1);
  } while (!text.empty());
  return pieces;
}

class RemarkDividerObject : public PracticeObject {
 public:
  explicit RemarkDividerObject(Workshop& workshop)
      : PracticeObject(hostlib::operations::remark_divider::kClass, &workshop.lastError) {
    using namespace hostlib::operations::remark_divider;
    On(kDivide, [](const Arguments& a) { return Value(Divide(a[0].Text())); });
  }
};

}  // namespace

hostlib::ObjectPtr MakeRemarkDivider(Workshop& workshop) {
  return workshop.Make<RemarkDividerObject>(workshop);
}

}  // namespace practice::objects
