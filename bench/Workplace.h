#pragma once

#include "bench/Booking.h"
#include "bench/ReadyAgent.h"
#include "platform/FixedPlatform.h"
#include "practice/host/Host.h"
#include "practice/library/IniText.h"
#include "practice/library/PracticeLibrary.h"

namespace bench {

/// The one INI file of a run.
class OneIniFile : public practice::Profiles {
 public:
  explicit OneIniFile(const std::wstring& text) : ini_(text) {}
  std::wstring Read(std::wstring_view path, std::wstring_view section,
                    std::wstring_view key) override;
  bool Write(std::wstring_view path, std::wstring_view section, std::wstring_view key,
             std::wstring_view value) override;

 private:
  practice::IniText ini_;
};

/// Everything that one run works with, as it is before the run: the booking is open at the host,
/// the user's office is known. A copy is a new workplace in the state of before.
class Workplace {
 public:
  explicit Workplace(const Booking& booking);
  Workplace(const Workplace& other);
  Workplace& operator=(const Workplace&) = delete;

  const int chosen;
  practice::Host host;
  platform::FixedPlatform platform;
  ReadyAgent agent;

  practice::PracticeLibrary& library() { return library_; }

 private:
  OneIniFile ini_;
  practice::UserValuesInMemory userValues_;
  practice::PracticeLibrary library_;
};

}  // namespace bench
