#pragma once

#include <cstdint>

#include "hostlib/Object.h"

namespace hostlib::com {

/// The result says clearly that the call was never made.
inline bool SaysNotMade(std::uint32_t result) {
  switch (result) {
    case 0x800706A6:  // the way to the server is no longer one
    case 0x800706B5:  // the server does not know what is called
    case 0x800706BA:  // the server is not there
    case 0x800706BB:  // ... or is too busy
    case 0x800706BF:  // the call failed and was not made
    case 0x800706D9:  // nobody listens
    case 0x80070776:  // nobody knows the server, ...
    case 0x80070777:  // ... or the object in it
    case 0x80010001:  // the callee rejected the call
    case 0x80010003:  // this program may not call out now: there are
    case 0x80010004:  // several reasons
    case 0x80010005:
    case 0x8001000B:  // the arguments could not be packed up
    case 0x80010011:  // no second call out of this one
    case 0x80010012:  // the server died before it took the call
    case 0x80010108:  // the object had left its clients
    case 0x8001010A:  // the callee wants the call later
    case 0x8001010B:  // the callee rejected the call
    case 0x8001010D:  // this program may not call out now
    case 0x8001010E:  // ... nor from this thread
    case 0x8001010F:  // ... which is not set up
    case 0x80010113:  // the interface is not there any more
    case 0x80010114:  // the object is not there any more
    case 0x800401F0:  // the link is not set up
    case 0x800401FD:  // the object is not connected to its server
    case 0x80080005:  // the server does not start
    case 0x80080008:  // the server is about to end
      return true;
    default:
      return false;
  }
}

/// The result comes from the link, not from what was called.
inline bool IsOfTheLink(std::uint32_t result) {
  constexpr std::uint32_t kOfTheLink = 0x80010000;
  constexpr std::uint32_t kOfTheSystem = 0x80070000;
  const std::uint32_t code = result & 0xFFFFU;
  const auto between = [code](std::uint32_t first, std::uint32_t last) {
    return code >= first && code <= last;
  };
  if (result - code == kOfTheLink) return true;
  // Between these stand the system's numbers for other things.
  return result - code == kOfTheSystem &&
         (between(1700, 1783) || code == 1791 || code == 1806 || between(1817, 1836) ||
          between(1898, 1900) || between(1910, 1918) || between(1922, 1929));
}

/// What the result of a call tells about its entry. A result of the link that
/// does not say clearly that the call was never made counts as interrupted: a
/// second try could write twice. Any other is the answer of the library.
inline LibraryError::Outcome OutcomeOf(std::uint32_t result) {
  using enum LibraryError::Outcome;
  if (SaysNotMade(result)) return kNotSent;
  return IsOfTheLink(result) ? kInterrupted : kRefused;
}

}  // namespace hostlib::com
