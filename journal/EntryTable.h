#pragma once

#include <span>

#include "hostlib/Operations.h"

namespace journal {

/// How an operation that reaches the host tells what became of its entry.
enum class Verdict {
  kByReturning,  ///< the library itself reads the answer, and fails when it is not good
  kByAnswer,     ///< the operation answers True or False
  kByReader,     ///< the program has the answer read by another object, or does not look at it
};

/// An operation that sends something to the host. Every other call stays within the library.
struct EntryOperation {
  const hostlib::Operation* operation;
  Verdict verdict;
};
std::span<const EntryOperation> EntryOperations();
const EntryOperation* FindEntryOperation(const hostlib::Operation* operation) noexcept;

/// An operation that reads an entry's answer, and the flags in which it says what it found. The
/// entry was accepted when one of them is True, refused when all are False.
struct AnswerReader {
  const hostlib::Operation* operation;
  std::wstring_view flags[2];  ///< the second may be ""
};
const AnswerReader* FindAnswerReader(const hostlib::Operation* operation);

}  // namespace journal
