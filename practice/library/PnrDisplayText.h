#pragma once

#include "practice/library/DisplayLines.h"

namespace practice {

/// A numbered line of a PNR display.
struct PnrLine {
  std::wstring number;
  std::wstring code;  ///< NM for a name
  std::wstring text;  ///< without code and association; a name with its number and point
  std::wstring whole;
  display_lines::AssociationWords association;
};

/// A PNR display, read.
struct PnrDisplayText {
  std::wstring locator;  ///< "" when the PNR has none
  std::wstring office;
  std::vector<PnrLine> lines;

  std::vector<const PnrLine*> All(std::wstring_view code) const;
};

/// Nothing when the answer is no PNR display.
std::optional<PnrDisplayText> ReadPnrDisplay(std::wstring_view answer);

}  // namespace practice
