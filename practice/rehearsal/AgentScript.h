#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "common/RunTimeError.h"

namespace practice {

/// One line of a written agent: a word, then words, numbers and quoted texts.
struct AgentLine {
  int number;  ///< in the file, from 1
  std::wstring verb;
  std::vector<std::wstring> words;  ///< quoted texts without their quotes, escapes resolved

  /// "" when there is no such word; counted from 0.
  std::wstring Word(std::size_t index) const {
    return index < words.size() ? words[index] : std::wstring();
  }
};

/// A line that is not of the format: the description names it.
class AgentScriptError : public common::RunTimeError {
 public:
  using RunTimeError::RunTimeError;
};

/// Reads a written agent. Empty lines and lines that begin with "#" are left out. In quoted texts
/// \r, \n, \" and \\ are escapes. Throws AgentScriptError.
std::vector<AgentLine> ReadAgentScript(std::wstring_view text);

}  // namespace practice
