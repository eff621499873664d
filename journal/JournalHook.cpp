#include "journal/JournalHook.h"

#include "common/Numbers.h"
#include "journal/Quietly.h"

namespace journal {
namespace {

namespace operations = hostlib::operations;
using hostlib::CallInfo;
using hostlib::Value;

bool IsMessage(const CallInfo& call) {
  return Is(call.operation, operations::script_error_reporter::kReportLastError) ||
         Is(call.operation, operations::script_error_reporter::kShowMessage) ||
         Is(call.operation, operations::script_error_reporter::kShowError);
}

std::wstring TextAt(const CallInfo& call, std::size_t index) {
  const auto* text =
      index < call.arguments.size() ? call.arguments[index].If<std::wstring_view>() : nullptr;
  return text == nullptr ? std::wstring() : std::wstring(*text);
}

std::wstring NameOf(const CallInfo& call) {
  return std::wstring(call.object) + L"." +
         (call.operation == nullptr ? common::NumberText(call.slot)
                                    : std::wstring(call.operation->name));
}

}  // namespace

Value JournalHook::OnCall(const CallInfo& call, const std::function<Value()>& proceed) {
  Quietly([&] { payments_.Before(call); });
  // Cannot fail: whatever becomes of what is written, an entry is known for one.
  const EntryOperation* entry = FindEntryOperation(call.operation);
  return entry != nullptr ? Send(*entry, call, proceed) : Pass(call, proceed);
}

Value JournalHook::Send(const EntryOperation& operation, const CallInfo& call,
                        const std::function<Value()>& proceed) {
  int number = 0;
  Quietly([&] {
    fields_.Look();
    number = entries_.Begin(call);
  });
  const auto started = clock_.Ticks();
  try {
    Value answer = proceed();
    Quietly([&] {
      if (const auto* text = answer.If<std::wstring>()) payments_.Display(*text);
    });
    Quietly([&] { entries_.Answered(number, operation, answer, clock_.Ticks() - started); });
    return answer;
  } catch (const hostlib::LibraryError& error) {
    Quietly([&] {
      lastFailure_ = FailureText(error);
      entries_.Failed(number, operation, error, clock_.Ticks() - started);
    });
    throw;
  } catch (...) {
    Quietly([&] { entries_.BrokenOff(number, clock_.Ticks() - started); });
    throw;
  }
}

Value JournalHook::Pass(const CallInfo& call, const std::function<Value()>& proceed) {
  Quietly([&] { Before(call); });
  try {
    Value answer = proceed();
    Quietly([&] { After(call, answer); });
    return answer;
  } catch (const hostlib::LibraryError& error) {
    Quietly([&] { Failed(call, error); });
    throw;
  }
}

void JournalHook::Before(const CallInfo& call) {
  if (!IsMessage(call)) return;
  fields_.Look();
  constexpr std::size_t kTextAt = 2;
  const bool hasText = call.arguments.size() > kTextAt;
  writer_.Write(L"Message by " + std::wstring(call.operation->name),
                hasText ? TextAt(call, kTextAt) : lastFailure_);
  writer_.Remember(L"a message of the library");
}

void JournalHook::After(const CallInfo& call, const Value& answer) {
  payments_.After(call, answer);
  entries_.Follow(call, answer);
  if (IsMessage(call)) writer_.Write(L"Message closed");
  if (Is(call.operation, operations::pnr_reader::kGetRecordLocator)) {
    writer_.Write(L"Record locator " + Quoted(answer));
    if (const auto* locator = answer.If<std::wstring>()) writer_.NameAfter(*locator);
  }
  NoteOffice(call, answer);
}

// As the run takes it: found earlier that day, and replaced by what the host says.
void JournalHook::NoteOffice(const CallInfo& call, const Value& answer) {
  constexpr std::wstring_view kOffice = L"OfficeID";
  constexpr std::size_t kNameAt = 2;
  if (TextAt(call, kNameAt) != kOffice) return;
  if (Is(call.operation, operations::user_settings_store::kGetSetting)) {
    writer_.Write(L"Office " + Quoted(answer) + L", as found last");
  } else if (Is(call.operation, operations::user_settings_store::kSaveSetting)) {
    writer_.Write(L"Office " + Quoted(call.arguments.back()) + L", as the host says");
  }
}

std::wstring JournalHook::Quoted(const hostlib::ValueView& value) const {
  return writer_.masking().Masked(hostlib::Describe(value));
}

void JournalHook::Failed(const CallInfo& call, const hostlib::LibraryError& error) {
  fields_.Look();
  lastFailure_ = FailureText(error);
  writer_.Write(L"Failed: " + NameOf(call), lastFailure_);
  writer_.Remember(L"a failure of " + NameOf(call));
}

void JournalHook::NotMade(std::wstring_view className, const hostlib::LibraryError& error) {
  lastFailure_ = FailureText(error);
  writer_.Write(L"Not made: " + std::wstring(className), lastFailure_);
  writer_.Remember(L"a failure to make " + std::wstring(className));
}

}  // namespace journal
