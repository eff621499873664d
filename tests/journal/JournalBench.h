#pragma once

#include <map>
#include <set>

#include "app/Program.h"
#include "common/Text.h"
#include "journal/RunJournal.h"
#include "platform/FixedPlatform.h"
#include "practice/rehearsal/Rehearsal.h"

namespace journal {

/// A clock that goes only when it is told to.
class HandClock : public Clock {
 public:
  std::chrono::milliseconds time = std::chrono::hours(13) + std::chrono::minutes(37);
  std::chrono::year_month_day day{std::chrono::year(2007), std::chrono::month(2),
                                  std::chrono::day(20)};

  Moment Now() const override { return {day, time}; }
  std::chrono::milliseconds Ticks() const override { return time; }
};

/// A folder in memory, with the ways in which a real one can fail.
class FolderInMemory : public Folder {
 public:
  std::map<std::wstring, std::string> files;
  std::vector<std::wstring> removed;
  bool takesFiles = true;
  bool takesNames = true;
  bool takesText = true;
  int flushes = 0;
  int namesTried = 0;

  Naming CreateNew(std::wstring_view name, std::unique_ptr<File>& file) override {
    ++namesTried;
    if (!takesFiles) return Naming::kImpossible;
    if (files.contains(std::wstring(name))) return Naming::kTaken;
    files[std::wstring(name)];
    file = std::make_unique<FileInMemory>(*this, std::wstring(name));
    return Naming::kDone;
  }
  std::vector<std::wstring> Names() const override {
    std::vector<std::wstring> names;
    for (const auto& [name, content] : files) names.push_back(name);
    return names;
  }
  void Remove(std::wstring_view name) override {
    removed.emplace_back(name);
    files.erase(std::wstring(name));
  }
  /// The one file's text, with "\n" as line end; "" when there is not exactly one.
  std::wstring Text() const {
    if (files.size() != 1) return {};
    return common::Replace(common::FromUtf8(files.begin()->second), L"\r\n", L"\n");
  }

 private:
  class FileInMemory : public File {
   public:
    FileInMemory(FolderInMemory& folder, std::wstring name)
        : folder_(folder), name_(std::move(name)) {}
    bool Append(std::string_view bytes) override {
      if (folder_.takesText) folder_.files[name_] += bytes;
      return folder_.takesText;
    }
    void Flush() override { ++folder_.flushes; }
    Naming Rename(std::wstring_view name) override {
      ++folder_.namesTried;
      if (!folder_.takesNames) return Naming::kImpossible;
      if (folder_.files.contains(std::wstring(name))) return Naming::kTaken;
      auto node = folder_.files.extract(name_);
      node.key() = name_ = name;
      folder_.files.insert(std::move(node));
      return Naming::kDone;
    }

   private:
    FolderInMemory& folder_;
    std::wstring name_;
  };
};

/// Rehearsals that are written down.
struct JournalBench {
  HandClock clock;
  FolderInMemory folder;
  platform::FixedPlatform platform;

  RunJournal::Place Place() { return {platform, folder, clock, L"1.2.3"}; }

  /// Every entry takes the host 50 ms; the run goes through a journal.
  void Attend(practice::RehearsalScene& scene) {
    scene.prepare = [this, prepare = scene.prepare](practice::Host& host) {
      host.faults.slow = [this](int) { clock.time += std::chrono::milliseconds(50); };
      if (prepare) prepare(host);
    };
    scene.run = [this](hostlib::Library& library, ui::Desktop& desktop,
                       const platform::Platform& machine) {
      RunJournal journal(desktop, Place());
      return journal.Ended(app::RunProgram(journal.Before(library), journal.desktop(), machine));
    };
  }

  /// The lines of the file that begin with a time, without it.
  std::vector<std::wstring> OwnLines() const {
    std::vector<std::wstring> lines;
    const std::wstring text = folder.Text();
    for (std::size_t from = 0; from < text.size();) {
      const std::size_t end = text.find(L'\n', from);
      const std::wstring line = text.substr(from, end - from);
      constexpr std::wstring_view kTime = L"##:##:##.###";
      if (common::Like(line.substr(0, kTime.size()), kTime)) {
        lines.push_back(line.substr(kTime.size() + 1));
      }
      from = end + 1;
    }
    return lines;
  }
};

}  // namespace journal
