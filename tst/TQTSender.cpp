#include "tst/TQTSender.h"

#include "hostlib/Requests.h"

namespace tst {

TQTSender::TQTSender(hostlib::Library& library, hostlib::TerminalSession& session,
                     errors::ErrorHandler& errors)
    : library_(library), session_(session), errors_(errors) {}

bool TQTSender::SendTQT() {
  return errors_.Run(errors::procedures::kSendTQT, [&] {
    hostlib::TstListRequest request(library_);
    session_.SendSingle(request.BuildListCommand());
  });
}

}  // namespace tst
