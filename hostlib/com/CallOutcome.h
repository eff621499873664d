#pragma once

#include <cstdint>

#include "hostlib/Object.h"

namespace hostlib::com {

/// The number of the LibraryError that an unusable installed library gives.
inline constexpr auto kLibraryDoesNotFit = static_cast<std::int32_t>(0x8002801D);

/// What the result of a call tells about its entry. A result that does not say clearly that the
/// call was never made counts as interrupted: a second try could write twice.
inline LibraryError::Outcome OutcomeOf(std::uint32_t result) {
  using enum LibraryError::Outcome;
  switch (result) {
    case 0x800706BA:  // the server is not there
    case 0x800706BF:  // the call failed and was not made
    case 0x80010001:  // the callee rejected the call
    case 0x8001010A:  // ... and wants it later
    case 0x80010012:  // the server died before it took the call
    case 0x8001010D:  // this program may not call out now
    case 0x8001010E:  // ... nor from this thread
    case 0x800401FD:  // the object is not connected to its server
    case 0x800401F0:  // the link is not set up
    case 0x80080005:  // the server does not start
    case 0x80080008:  // the server is about to end
      return kNotSent;
    case 0x800706BE:  // the call failed
    case 0x80010002:  // the call was cancelled
    case 0x80010006:  // the connection ended, or its state is not known
    case 0x80010007:  // the server died
    case 0x80010100:  // a system call failed
    case 0x80010105:  // the server failed
    case 0x80010108:  // the object has left its clients
      return kInterrupted;
    default:
      return kRefused;
  }
}

}  // namespace hostlib::com
