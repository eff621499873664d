#include "updates/ElementEntry.h"

namespace updates {
namespace {

/// An entry stays below this length.
constexpr std::size_t kEntryLimit = 240;

}  // namespace

std::vector<std::wstring> JoinElements(const std::vector<std::wstring>& elements) {
  std::vector<std::wstring> entries;
  for (const std::wstring& element : elements) {
    const std::size_t length = element.size() + 1;
    if (entries.empty() || entries.back().size() + length >= kEntryLimit) {
      entries.emplace_back().reserve(kEntryLimit);
    }
    entries.back().append(element).append(L";");
  }
  return entries;
}

ElementEntry::ElementEntry(hostlib::Library& library, hostlib::ScriptGlobal& global,
                           hostlib::TerminalSession& session, errors::ErrorHandler& errors,
                           common::RunEnd& runEnd)
    : library_(library), global_(global), session_(session), errors_(errors), runEnd_(runEnd) {}

void ElementEntry::Send(const std::vector<std::wstring>& elements) {
  for (const std::wstring& entry : JoinElements(elements)) {
    if (!IsAccepted(entry)) runEnd_.EndScript();
  }
}

bool ElementEntry::IsAccepted(const std::wstring& entry) {
  hostlib::PnrElementEntry request(library_);
  // Joined entries go by SendCommand whatever their length.
  const std::wstring response = session_.SendCommand(entry);
  const hostlib::ParameterBag result = request.ReadResponse(response);
  if (global_.FlagIn(result, L"blnKeyPNRFound")) return true;
  errors_.ReportRefusal(errors::procedures::kEnterPNRElements);
  return false;
}

}  // namespace updates
