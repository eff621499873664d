#pragma once

#include "journal/Masking.h"
#include "journal/Storage.h"

namespace journal {

/// Writes the lines of one run's file. A line has a time and words of our own; a text from
/// elsewhere follows, each of its lines behind "    | ", so that none can pass for one of ours.
/// Everything is masked. Nothing is written when there is no file; that is no failure.
class Writer {
 public:
  Writer(Folder& folder, const Clock& clock);

  /// Makes the run's file and its heading.
  void Open(std::wstring_view version);
  void Write(std::wstring_view words);
  void Write(std::wstring_view words, std::wstring_view text);
  /// What happened last, for the end of the file; nothing is written yet.
  void Remember(std::wstring_view step) { lastStep_ = step; }
  const std::wstring& lastStep() const { return lastStep_; }
  /// What was written so far is not lost, whatever follows.
  void Secure();
  /// The file is named after the booking from now on, or as soon as it can be.
  void NameAfter(std::wstring_view locator);
  /// Names the file if that was not possible before.
  void Finish();

  Masking& masking() { return masking_; }

 private:
  std::wstring Line(std::wstring_view words) const;
  void Append(std::wstring_view text);
  void Rename();
  /// Tries the names of this run's file, one after the other, as long as they are taken.
  template <typename Try>
  bool Named(std::wstring_view locator, const Try& tryName) const;

  Folder& folder_;
  const Clock& clock_;
  Masking masking_;
  Moment start_;
  std::unique_ptr<File> file_;
  std::wstring locator_;
  bool named_ = false;
  std::wstring lastStep_ = L"the start";
};

/// "0.050 s".
std::wstring Seconds(std::chrono::milliseconds time);

}  // namespace journal
