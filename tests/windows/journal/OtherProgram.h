#pragma once

#include <string>

namespace journal {

/// Writes one journal of this many lines, each with this word, into the folder: at the same moment
/// and of the same booking as any other program that does.
void WriteOneJournal(const std::wstring& folder, const std::wstring& word, int lines);

/// This test program once more, doing that.
class OtherProgram {
 public:
  OtherProgram(const std::wstring& folder, const std::wstring& word, int lines);
  ~OtherProgram();
  OtherProgram(const OtherProgram&) = delete;
  OtherProgram& operator=(const OtherProgram&) = delete;
  /// Waits for its end.
  bool HasSucceeded();

 private:
  void* process_ = nullptr;
};

/// Whether the command line is that of such a program; it has then done its work.
bool ActedAsOtherProgram();

}  // namespace journal
