#pragma once

#include "practice/host/Pnr.h"

namespace practice {

/// The longest remark, as it is entered: its code and its association included.
inline constexpr std::size_t kLongestRemark = 124;

/// Throws Refused when the text is no text for that kind of element.
void CheckText(Kind kind, std::wstring_view text);

/// A kind whose elements may be for some passengers and segments only.
bool TakesAssociation(Kind kind);

/// The two cities of a segment's text: after its date, when it has one.
struct SegmentParts {
  std::wstring flight;  ///< SK1234, or SKOPEN
  std::wstring date;    ///< "" for an open segment without one
  std::wstring from;
  std::wstring to;
};
SegmentParts PartsOf(std::wstring_view segmentText);

/// What stands behind the name in one of an MCO's fields ("FA", "FM", "FP"); "" when it has none.
std::wstring McoField(std::wstring_view mcoText, std::wstring_view name);

}  // namespace practice
