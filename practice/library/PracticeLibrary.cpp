#include "practice/library/PracticeLibrary.h"

#include "practice/library/Objects.h"
#include "practice/library/ScriptGlobalObject.h"

namespace practice {
namespace {

using hostlib::ObjectPtr;
namespace operations = hostlib::operations;

ObjectPtr MakeBag(Workshop& workshop) { return workshop.MakeBag(); }

ObjectPtr MakeScriptGlobal(Workshop& workshop) {
  return workshop.Make<ScriptGlobalObject>(
      workshop.with.platform,
      [&workshop](const AttachedProgram& program) {
        workshop.attached = program;
        return workshop.options.attachRefused;
      },
      &workshop.lastError);
}

struct Maker {
  std::wstring_view className;
  ObjectPtr (*make)(Workshop& workshop);
};

constexpr Maker kMakers[] = {
    {operations::kBag, MakeBag},
    {operations::script_global::kClass, MakeScriptGlobal},
    {operations::terminal_session::kClass, objects::MakeTerminalSession},
    {operations::script_error_reporter::kClass, objects::MakeErrorReporter},
    {operations::profile_store::kClass, objects::MakeProfileStore},
    {operations::user_settings_store::kClass, objects::MakeUserSettingsStore},
    {operations::office_display_reader::kClass, objects::MakeOfficeDisplayReader},
    {operations::queue_request::kClass, objects::MakeQueueRequest},
    {operations::pnr_reader::kClass, objects::MakePnrReader},
    {operations::tsm_display_reader::kClass, objects::MakeTsmDisplayReader},
    {operations::tst_list_request::kClass, objects::MakeTstListRequest},
    {operations::tst_detail_request::kClass, objects::MakeTstDetailRequest},
    {operations::tst_update_request::kClass, objects::MakeTstUpdateRequest},
    {operations::pnr_element_change::kClass, objects::MakePnrElementChange},
    {operations::pnr_element_entry::kClass, objects::MakePnrElementEntry},
    {operations::pnr_element_builder::kClassFO, objects::MakeBuilderFO},
    {operations::pnr_element_builder::kClassFV, objects::MakeBuilderFV},
    {operations::pnr_element_builder::kClassFP, objects::MakeBuilderFP},
    {operations::pnr_element_builder::kClassFM, objects::MakeBuilderFM},
    {operations::pnr_element_builder::kClassRM, objects::MakeBuilderRM},
    {operations::pnr_element_builder::kClassOP, objects::MakeBuilderOP},
    {operations::remark_divider::kClass, objects::MakeRemarkDivider},
    {operations::print_request::kClass, objects::MakePrintRequest},
    {operations::back_office_request::kClass, objects::MakeBackOfficeRequest},
};

}  // namespace

PracticeLibrary::PracticeLibrary(Collaborators collaborators, Options options)
    : workshop_(std::make_shared<Workshop>(collaborators, options)) {}

PracticeLibrary::~PracticeLibrary() = default;

ObjectPtr PracticeLibrary::Create(std::wstring_view className) {
  for (const Maker& maker : kMakers) {
    if (maker.className != className) continue;
    try {
      return maker.make(*workshop_);
    } catch (const hostlib::LibraryError& error) {
      workshop_->lastError = {error.number(), error.description()};
      throw;
    }
  }
  RaiseFailure(kNoClass, L"The library has no class " + std::wstring(className));
}

PracticeLibrary::Options& PracticeLibrary::options() { return workshop_->options; }

const AttachedProgram& PracticeLibrary::attached() const { return workshop_->attached; }

int PracticeLibrary::LiveObjects() const { return workshop_->live; }

}  // namespace practice
