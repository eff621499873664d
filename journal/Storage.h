#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What a journal needs of the machine. None of it may throw or end the run: what cannot be done is
// answered with False, null or nothing.
namespace journal {

/// The user's local date and time of day.
struct Moment {
  std::chrono::year_month_day day;
  std::chrono::milliseconds time;  ///< since midnight
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual Moment Now() const = 0;
  /// For durations: never set back.
  virtual std::chrono::milliseconds Ticks() const = 0;
};

/// What became of the wish to have a file under a name.
enum class Naming {
  kDone,
  kTaken,       ///< another file has the name
  kImpossible,  ///< nor would it be with another name
};

/// A file that is being written. It is closed when it is destroyed.
class File {
 public:
  virtual ~File() = default;
  virtual bool Append(std::string_view bytes) = 0;
  /// Everything appended so far survives the end of the machine, too.
  virtual void Flush() = 0;
  /// Another name in the same folder; what is appended afterwards goes into the same file, which
  /// keeps its name when it cannot have this one.
  virtual Naming Rename(std::wstring_view name) = 0;
};

/// The folder of the journals. Names have no path in them.
class Folder {
 public:
  virtual ~Folder() = default;
  /// Makes the folder, too. `file` is set when it is done.
  virtual Naming CreateNew(std::wstring_view name, std::unique_ptr<File>& file) = 0;
  /// The files in it; no folders, no links.
  virtual std::vector<std::wstring> Names() const = 0;
  virtual void Remove(std::wstring_view name) = 0;
};

}  // namespace journal
