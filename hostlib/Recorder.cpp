#include "hostlib/Recorder.h"

namespace hostlib {
namespace {

std::wstring Line(const CallInfo& call) {
  std::wstring line(call.object);
  line += L"." + std::to_wstring(call.interfaceNumber) + L"." + std::to_wstring(call.slot) + L" ";
  line += call.operation == nullptr ? L"?" : call.operation->name;
  line += L"(";
  for (std::size_t i = 0; i < call.arguments.size(); ++i) {
    if (i > 0) line += L", ";
    line += Describe(call.arguments[i]);
  }
  return line + L")";
}

}  // namespace

void Recorder::ObjectCreated(std::wstring_view className) {
  ++live_;
  if (objects_ == Objects::kShow) lines_.push_back(L"+ " + std::wstring(className));
}

void Recorder::ObjectReleased(std::wstring_view className) {
  --live_;
  if (objects_ == Objects::kShow) lines_.push_back(L"- " + std::wstring(className));
}

Value Recorder::OnCall(const CallInfo& call, const std::function<Value()>& proceed) {
  // The line stands before the call is made, so that what happens inside comes after it.
  const std::size_t at = lines_.size();
  lines_.push_back(Line(call));
  try {
    Value answer = proceed();
    if (!answer.IsEmpty()) lines_[at] += L" -> " + Describe(answer);
    return answer;
  } catch (const LibraryError& error) {
    lines_[at] += L" !> " + error.description();
    throw;
  }
}

}  // namespace hostlib
