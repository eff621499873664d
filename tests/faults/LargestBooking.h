#pragma once

#include <string>

#include "practice/rehearsal/Rehearsal.h"

namespace faults {

inline constexpr int kElements = 999;
inline constexpr int kElementsWithRoom = 960;  ///< for what the script writes
inline constexpr int kNames = 99;
inline constexpr int kTSTs = 100;

/// 99 names and 100 TSTs, with remarks up to so many elements.
std::wstring LargestBooking(int elements);
/// The agent picks these lines of the list of TSTs, and lets the script write.
practice::RehearsalScene LargestScene(int elements, const std::wstring& lines);
/// All lines of that list.
std::wstring AllTSTs();

}  // namespace faults
