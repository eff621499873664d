#pragma once

#include <windows.h>

#include <memory>

namespace practice::terminal {

/// The process that an object was made for.
class Client {
 public:
  /// The process whose call this thread carries out, outside the main thread's apartment. Null when
  /// the system does not tell.
  static std::shared_ptr<const Client> Calling();

  explicit Client(HANDLE process) : process_(process) {}
  ~Client() { CloseHandle(process_); }
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  bool IsGone() const { return WaitForSingleObject(process_, 0) == WAIT_OBJECT_0; }

 private:
  HANDLE process_;
};

using ClientPtr = std::shared_ptr<const Client>;

}  // namespace practice::terminal
