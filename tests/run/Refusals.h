#pragma once

#include "tests/run/Scenes.h"

namespace run {

/// A booking of which the run changes every element there is, with two entries for the new ones.
inline constexpr const char* kRefusalBooking = "write-everything";

/// One entry of that booking's run that the host refuses, and what the agent is then told.
struct Refusal {
  const char* name;
  const wchar_t* entry;      ///< how the refused entry begins
  std::wstring agentGoesOn;  ///< the agent's further lines
};

/// The report of a refusal, with its whole standard text, as a line of the agent's.
std::wstring RefusalReport(std::wstring_view firstLine);
/// The standard text, as a line of an agent or a call writes it.
std::wstring_view StandardText();

/// One of every kind.
std::vector<Refusal> AllRefusals();

/// The number of the first entry that begins so, from 1. Fails the test when there is none.
int PlaceOf(const Lines& entries, std::wstring_view start);

}  // namespace run
