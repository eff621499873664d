#include "hostlib/com/ProgIds.h"

#include <algorithm>
#include <iterator>

#include "hostlib/Operations.h"

namespace hostlib::com {
namespace {

struct Registered {
  std::wstring_view className;
  std::wstring_view progId;
};

// Texts end in a null character: they are handed to the system as they are.
constexpr Registered kTable[] = {
    {operations::kBag, L"Vantel.ParameterBag"},
    {operations::script_global::kClass, L"Vantel.ScriptGlobal"},
    {operations::terminal_session::kClass, L"Vantel.TerminalSession"},
    {operations::script_error_reporter::kClass, L"Vantel.ScriptErrorReporter"},
    {operations::profile_store::kClass, L"Vantel.ProfileStore"},
    {operations::user_settings_store::kClass, L"Vantel.UserSettingsStore"},
    {operations::office_display_reader::kClass, L"Vantel.OfficeDisplayReader"},
    {operations::queue_request::kClass, L"Vantel.QueueRequest"},
    {operations::pnr_reader::kClass, L"Vantel.PnrReader"},
    {operations::tsm_display_reader::kClass, L"Vantel.TsmDisplayReader"},
    {operations::tst_list_request::kClass, L"Vantel.TstListRequest"},
    {operations::tst_detail_request::kClass, L"Vantel.TstDetailRequest"},
    {operations::tst_update_request::kClass, L"Vantel.TstUpdateRequest"},
    {operations::pnr_element_change::kClass, L"Vantel.PnrElementChange"},
    {operations::pnr_element_builder::kClassFO, L"Vantel.PnrElementBuilderFO"},
    {operations::pnr_element_builder::kClassFV, L"Vantel.PnrElementBuilderFV"},
    {operations::pnr_element_builder::kClassFP, L"Vantel.PnrElementBuilderFP"},
    {operations::pnr_element_builder::kClassFM, L"Vantel.PnrElementBuilderFM"},
    {operations::pnr_element_builder::kClassRM, L"Vantel.PnrElementBuilderRM"},
    {operations::pnr_element_builder::kClassOP, L"Vantel.PnrElementBuilderOP"},
    {operations::pnr_element_entry::kClass, L"Vantel.PnrElementEntry"},
    {operations::remark_divider::kClass, L"Vantel.RemarkDivider"},
    {operations::print_request::kClass, L"Vantel.PrintRequest"},
    {operations::back_office_request::kClass, L"Vantel.BackOfficeRequest"},
};

}  // namespace

std::wstring_view ProgIdOf(std::wstring_view className) {
  const auto* found = std::find_if(std::begin(kTable), std::end(kTable),
                                   [&](const Registered& r) { return r.className == className; });
  return found == std::end(kTable) ? std::wstring_view() : found->progId;
}

}  // namespace hostlib::com
