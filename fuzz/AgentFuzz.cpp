#include "fuzz/Input.h"
#include "practice/rehearsal/AgentScript.h"

// A written agent: it is read, or the line that can not be is named.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    for (const practice::AgentLine& line : practice::ReadAgentScript(fuzz::TextOf(data, size))) {
      fuzz::Require(line.number > 0 && !line.verb.empty(), "every line has a number and a verb");
    }
  } catch (const practice::AgentScriptError& error) {
    fuzz::Require(error.description().starts_with(L"line "), "the failure names its line");
  }
  return 0;
}
