#include "practice/terminal/Client.h"

// The order matters.
// clang-format off
#include <rpc.h>
#include <rpcdcep.h>
// clang-format on

namespace practice::terminal {

ClientPtr Client::Calling() {
  unsigned long id = 0;
  if (I_RpcBindingInqLocalClientPID(nullptr, &id) != RPC_S_OK) return nullptr;
  const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, id);
  return process == nullptr ? nullptr : std::make_shared<const Client>(process);
}

}  // namespace practice::terminal
