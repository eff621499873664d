#include "app/SendQETrans.h"

#include "common/ConstDefintions.h"
#include "common/Text.h"

namespace app {
namespace {

constexpr std::wstring_view kCategoryMark = L"C";
constexpr std::wstring_view kNotQueued =
    L"PNR was not Queued correctly ! \r\nPress 'OK' to continue or 'Cancel' to terminate.";

}  // namespace

SendQETrans::SendQETrans(hostlib::Library& library, hostlib::ScriptGlobal& global,
                         hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                         common::MessageBoxes& boxes, common::RunEnd& runEnd)
    : library_(library),
      global_(global),
      session_(session),
      errors_(errors),
      boxes_(boxes),
      runEnd_(runEnd) {}

void SendQETrans::SendQE(std::wstring_view officeID, std::wstring_view queueText) {
  errors_.Run(errors::procedures::kSendQETrans, [&] {
    if (IsQueued(officeID, queueText)) return;
    // Here the request and both bags have been released: the box may stand for long.
    if (boxes_.ShowBox(kNotQueued, common::kOkCancel, common::kTitle) == common::kCancel) {
      runEnd_.EndScript();
    }
  });
}

SendQETrans::Queue SendQETrans::Split(std::wstring_view queueText) {
  if (!common::Contains(queueText, kCategoryMark)) return {std::wstring(queueText), {}};
  std::wstring number = global_.GetField(queueText, 1, kCategoryMark);
  return {std::move(number), global_.GetField(queueText, 2, kCategoryMark)};
}

bool SendQETrans::IsQueued(std::wstring_view officeID, std::wstring_view queueText) {
  const Queue queue = Split(queueText);
  hostlib::QueueRequest request(library_);
  hostlib::ParameterBag bag(library_);
  bag.SetValue(L"strKeyQueNumber", queue.number);
  bag.SetValue(L"strKeyQueCategory", queue.category);
  bag.SetValue(L"strKeyQueOfficeID", officeID);
  bag.SetValue(L"blnKeyRetain", false);
  bag.SetValue(L"blnKeyRetrieve", false);
  const std::wstring command = request.BuildCommand(bag);
  if (command.empty()) return false;

  const hostlib::ParameterBag result = request.ReadResponse(session_.SendSingle(command));
  const bool pnrQueued = global_.FlagIn(result, L"blnKeyQuePNR");
  const bool queueOn = global_.FlagIn(result, L"blnKeyQueOn");
  return pnrQueued || queueOn;
}

}  // namespace app
