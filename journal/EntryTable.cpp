#include "journal/EntryTable.h"

#include <algorithm>
#include <array>

namespace journal {
namespace {

namespace operations = hostlib::operations;

constexpr std::array kEntryOperations{
    EntryOperation{&operations::terminal_session::kLoadPNR, Verdict::kByReturning},
    EntryOperation{&operations::terminal_session::kSendCommand, Verdict::kByReader},
    EntryOperation{&operations::terminal_session::kSendEntry, Verdict::kByReader},
    EntryOperation{&operations::terminal_session::kSendDisplay, Verdict::kByReader},
    EntryOperation{&operations::terminal_session::kSendEntryChecked, Verdict::kByAnswer},
};

constexpr std::array kAnswerReaders{
    AnswerReader{&operations::pnr_element_change::kReadResponse, {L"blnKeyPNRFound", L""}},
    AnswerReader{&operations::pnr_element_entry::kReadResponse, {L"blnKeyPNRFound", L""}},
    AnswerReader{&operations::print_request::kReadResponse, {L"blnKeyResult", L""}},
    AnswerReader{&operations::queue_request::kReadResponse, {L"blnKeyQuePNR", L"blnKeyQueOn"}},
    AnswerReader{&operations::tsm_display_reader::kParseTQMResponse, {L"blnKeyDisplayOK", L""}},
    AnswerReader{&operations::tst_list_request::kReadResponse, {L"blnKeyTST", L"blnKeyTSTList"}},
};

template <typename Rows>
auto Find(const Rows& rows, const hostlib::Operation* operation) noexcept -> decltype(rows.data()) {
  const auto found =
      std::ranges::find_if(rows, [&](const auto& row) { return Is(operation, *row.operation); });
  return found == rows.end() ? nullptr : &*found;
}

}  // namespace

std::span<const EntryOperation> EntryOperations() { return kEntryOperations; }

const EntryOperation* FindEntryOperation(const hostlib::Operation* operation) noexcept {
  return Find(kEntryOperations, operation);
}

const AnswerReader* FindAnswerReader(const hostlib::Operation* operation) {
  return Find(kAnswerReaders, operation);
}

}  // namespace journal
