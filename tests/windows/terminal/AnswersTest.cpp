#include <gtest/gtest.h>

#include <set>

#include "hostlib/Operations.h"
#include "hostlib/com/ComLibrary.h"
#include "platform/win32/WindowsPlatform.h"
#include "practice/library/PracticeLibrary.h"
#include "practice/library/win32/RegistryUserValues.h"
#include "practice/library/win32/WindowsProfiles.h"
#include "practice/terminal/Bookings.h"
#include "tests/windows/driver/Driver.h"
#include "tests/windows/driver/Process.h"
#include "tests/windows/terminal/Client.h"
#include "tests/windows/terminal/Terminal.h"

namespace {

using hostlib::Arguments;
using hostlib::Missing;
using hostlib::ObjectPtr;
using hostlib::Operation;
using hostlib::TextArray;
using hostlib::Value;

constexpr wchar_t kBooking[] = L"ordinary";

class NoBoxes : public common::MessageBoxes {
 public:
  int ShowBox(std::wstring_view, int, std::wstring_view) override { return 1; }
};

/// The library without COM.
class Direct {
 public:
  Direct() : library({host, platform, profiles, userValues, boxes}) {
    host.LoadBooking(practice::terminal::Bookings().Read(kBooking));
  }

  practice::Host host;
  platform::WindowsPlatform platform;
  practice::WindowsProfiles profiles;
  practice::RegistryUserValues userValues;
  NoBoxes boxes;
  practice::PracticeLibrary library;
};

/// What answer an operation gives: the value, and what it left in the bag that it was given.
std::wstring Answer(hostlib::Library& library, const Operation& operation,
                    const Arguments& arguments) {
  try {
    const ObjectPtr object = library.Create(operation.object);
    return hostlib::Describe(
        object->Interface(operation.interfaceNumber)->Call(operation.slot, arguments));
  } catch (const hostlib::LibraryError& error) {
    return std::to_wstring(error.number()) + L" " + error.source() + L": " + error.description();
  }
}

Value Bag(hostlib::Library& library, const std::vector<std::pair<std::wstring, Value>>& values) {
  const ObjectPtr bag = library.Create(hostlib::operations::kBag);
  for (const auto& [key, value] : values) bag->Call(7, {Value(key), value});
  return bag;
}

std::wstring InBag(const Value& bag, const wchar_t* key) {
  Value value = bag.AsObject()->Call(8, {Value(key)});
  if (value.IsObject()) value = value.AsObject()->Call(hostlib::kDefaultMember, {});
  return std::wstring(key) + L"=" + hostlib::Describe(value);
}

using Lines = std::vector<std::wstring>;

std::wstring NameOf(const Operation& operation) {
  return std::wstring(operation.object) + L"." + std::wstring(operation.name);
}

/// The work of one run, roughly, over any library: its answers in order.
class Work {
 public:
  explicit Work(hostlib::Library& library) : library_(library) {}

  Lines Do() {
    Global();
    Stores();
    Session();
    Reader();
    Fares();
    Builders();
    return lines_;
  }

  /// The operations that were called, as OBJECT.NAME.
  const std::set<std::wstring>& called() const { return called_; }

 private:
  void Mark(const Operation& operation) { called_.insert(NameOf(operation)); }

  void Note(const Operation& operation, const Arguments& arguments) {
    Mark(operation);
    lines_.push_back(std::wstring(operation.name) + L": " + Answer(library_, operation, arguments));
  }

  /// The answer, which is a bag, by the values in it.
  void NoteBag(const Operation& operation, const Arguments& arguments,
               const std::vector<const wchar_t*>& keys) {
    Mark(operation);
    try {
      const Value bag = library_.Create(operation.object)
                            ->Interface(operation.interfaceNumber)
                            ->Call(operation.slot, arguments);
      for (const wchar_t* key : keys) {
        lines_.push_back(std::wstring(operation.name) + L": " + InBag(bag, key));
      }
    } catch (const hostlib::LibraryError& error) {
      lines_.push_back(std::wstring(operation.name) + L": " + error.description());
    }
  }

  void Global() {
    using namespace hostlib::operations::script_global;
    Note(kGetField, {Value(L"AP,TK"), Value(2), Value(L",")});
    Note(kGetField, {Value(L"AP,TK"), Value(3), Value(L",")});
    Note(kHostDateToText, {Value(L"15MAR07")});
    Note(kHostDateToText, {Value(L"32MAR07")});
    Note(kTextToHostDate, {Value(L"no date")});
    Note(kToText, {Value(2.5)});
    Note(kToText, {Value(true)});
    Note(kToText, {Value()});
    Note(kToText, {Missing{}});
    Note(kToBoolean, {Value(L"True")});
    Note(kToBoolean, {Value(std::int16_t{0})});
    Note(kAttach, {Bag(library_, {}), Bag(library_, {})});
    Note(kFormatAssociation, {Value(L"2,3,4,7")});
  }

  void Stores() {
    using namespace hostlib::operations;
    Note(profile_store::kReadValue, {Value(L"C:\\none.ini"), Value(L"A"), Value(L"B")});
    Note(profile_store::kWriteValue,
         {Value(L"C:\\no folder\\none.ini"), Value(L"A"), Value(L"B"), Value(L"C")});
    Note(user_settings_store::kSaveSetting,
         {Value(L"PtaTest"), Value(L"Values"), Value(L"Date"), Value(L"\x00C5ngstr\x00F6m")});
    Note(user_settings_store::kGetSetting,
         {Value(L"PtaTest"), Value(L"Values"), Value(L"Date"), Missing{}});
    Note(user_settings_store::kGetSetting,
         {Value(L"PtaTest"), Value(L"Values"), Value(L"None"), Value(L"otherwise")});
  }

  void Session() {
    using namespace hostlib::operations;
    Note(terminal_session::kSendCommand, {Value(L"NOT AN ENTRY")});
    Note(terminal_session::kSendEntry, {Value(std::wstring(76, L'A'))});
    Note(script_error_reporter::kLastErrorNumber, {});
    Note(script_error_reporter::kLastErrorText, {});
    Note(terminal_session::kSendEntryChecked, {Value(L"IR")});
    Note(terminal_session::kSessionText, {});
    office_ = Text(terminal_session::kSendCommand, {Value(L"PV")});
    NoteBag(office_display_reader::kReadResponse, {Value(office_)}, {L"strKeyOfficeID"});
    Note(terminal_session::kLoadPNR, {});
  }

  std::wstring Text(const Operation& operation, const Arguments& arguments) {
    Mark(operation);
    return library_.Create(operation.object)->Call(operation.slot, arguments).Text();
  }

  void ReadInto(const Operation& operation, const std::vector<std::pair<std::wstring, Value>>& in,
                const Arguments& more, const std::vector<const wchar_t*>& keys) {
    Mark(operation);
    const Value bag = Bag(library_, in);
    std::vector<hostlib::ValueView> arguments = {bag};
    arguments.insert(arguments.end(), more.begin(), more.end());
    // What comes back may be the bag itself.
    Answer(library_, operation, arguments);
    for (const wchar_t* key : keys) {
      lines_.push_back(std::wstring(operation.name) + L": " + InBag(bag, key));
    }
  }

  void Reader() {
    using namespace hostlib::operations::pnr_reader;
    for (const Operation* count :
         {&kCountSegments, &kCountFPElements, &kCountRMElements, &kCountTKElements,
          &kCountNameElements, &kGetRecordLocator, &kCountOPElements, &kCountFSElements,
          &kCountOSIElements, &kCountMCOElements}) {
      Note(*count, {});
    }
    const std::vector<std::pair<std::wstring, Value>> first = {
        {L"intKeyIndex", Value(std::int16_t{0})}, {L"strKeyPNRElement", Value(L"MCO")}};
    ReadInto(kGetSegment, first, {}, {L"strKeySegment", L"strKeyDepCity", L"strKeyArrCity"});
    ReadInto(kGetNameElement, first, {}, {L"strKeyElement", L"strKeyElementNr"});
    ReadInto(kGetHeader, first, {}, {L"strKeyOfficeID"});
    ReadInto(kGetTKElement, first, {}, {L"strKeyAction", L"strKeyElement"});
    ReadInto(kFindElements, first, {}, {L"strKeyMCOFATicketNbr", L"strKeyAirline"});
    NoteBag(kFindElements,
            {Bag(library_, {{L"strKeyPNRElement", Value(L"ALL")},
                            {L"strKeyFind()", Value(TextArray{{L"", L"AP"}, 0})}})},
            {L"strKeyResult()"});
  }

  void Fares() {
    using namespace hostlib::operations;
    const Value empty = Bag(library_, {});
    Note(tsm_display_reader::kBuildTQMEntry, {empty});
    const std::wstring tqm = Text(terminal_session::kSendCommand,
                                  {Value(Text(tsm_display_reader::kBuildTQMEntry, {empty}))});
    NoteBag(tsm_display_reader::kParseTQMResponse, {Value(tqm), empty},
            {L"blnKeyDisplayOK", L"blnKeyTSMFound", L"dblMCOFee"});
    Note(tst_list_request::kBuildListCommand, {});
    Note(tst_list_request::kBuildPricingCommand, {});
    Note(tst_list_request::kBuildDisplayCommand, {empty});
    const std::wstring tst = Text(terminal_session::kSendDisplay, {Value(L"TQT")});
    NoteBag(tst_list_request::kReadResponse, {Value(tst)},
            {L"blnKeyTST", L"intKeyNoOfTST", L"strKeyTSTNum"});
    ReadInto(tst_detail_request::kReadFare, {}, {Value(tst)},
             {L"strKeyTaxArray()", L"blnKeyReissue"});
    ReadInto(tst_detail_request::kReadFareElements, {}, {Value(tst)},
             {L"strKeyFPElementValue", L"intKeyFPElementNumber"});
    ReadInto(tst_detail_request::kReadGeneral, {}, {Value(tst)}, {L"strKeyItinerary"});
    ReadInto(tst_detail_request::kReadNames, {}, {Value(tst)}, {L"strKeyTSTNames"});
    Note(tst_update_request::kBuildFareEntry, {empty});
    Note(tst_update_request::kBuildValidityEntry, {empty});
    Note(tst_update_request::kBuildTSTEntry, {empty});
  }

  void Builders() {
    using namespace hostlib::operations;
    const std::vector<std::pair<std::wstring, Value>> keys = {
        {L"strKeyText", Value(L"HELLO")},    {L"strKeyPasAsso", Value(L"")},
        {L"strKeySegAsso", Value(L"")},      {L"strKeyElementNr", Value(L"5")},
        {L"strKeyNewValue", Value(L"OK")},   {L"strKeyQueNumber", Value(L"80")},
        {L"strKeyQueCategory", Value(L"1")}, {L"strKeyQueOfficeID", Value(L"STOSK08AA")},
        {L"blnKeyRetain", Value(false)},     {L"strKeyDate", Value(L"16MAR07")}};
    using namespace pnr_element_builder;
    for (const Operation* build :
         {&kExecuteFO, &kExecuteFV, &kExecuteFP, &kExecuteFM, &kExecuteRM, &kExecuteOP,
          &pnr_element_change::kExecute, &print_request::kExecute, &back_office_request::kExecute,
          &queue_request::kBuildCommand}) {
      Note(*build, {Bag(library_, keys)});
    }
    const std::wstring answer = Text(terminal_session::kSendEntry, {Value(L"RM HELLO")});
    for (const Operation* read :
         {&pnr_element_change::kReadResponse, &pnr_element_entry::kReadResponse}) {
      NoteBag(*read, {Value(answer)}, {L"blnKeyPNRFound"});
    }
    NoteBag(print_request::kReadResponse,
            {Value(Text(terminal_session::kSendEntry, {Value(L"PRINT RT")}))}, {L"blnKeyResult"});
    NoteBag(queue_request::kReadResponse, {Value(answer), Missing{}, Missing{}},
            {L"blnKeyQuePNR", L"blnKeyQueOn"});
    Text(terminal_session::kSendEntry, {Value(L"OP 16MAR07 CHECK")});
    Note(terminal_session::kLoadPNR, {});
    const std::vector<std::pair<std::wstring, Value>> first = {
        {L"intKeyIndex", Value(std::int16_t{0})}};
    ReadInto(pnr_reader::kGetRMElement, first, {}, {L"strKeyText", L"strKeyElementNr"});
    ReadInto(pnr_reader::kGetOPElement, first, {}, {L"strKeyElement", L"strKeyElementNr"});
    Note(remark_divider::kDivide, {Value(std::wstring(200, L'A'))});
  }

  hostlib::Library& library_;
  std::wstring office_;
  Lines lines_;
  std::set<std::wstring> called_;
};

TEST(TerminalAnswers, AreThoseOfTheLibraryItself) {
  const driver::Process running(terminal::Program(), kBooking);
  driver::WaitUntil(L"the terminal is there",
                    [] { return FindWindowW(L"VantelPracticeTerminal", nullptr) != nullptr; });
  Direct direct;
  const Lines expected = Work(direct.library).Do();
  hostlib::com::InstalledObjects installed;
  hostlib::com::ComLibrary overCom(installed);
  const Lines answers = Work(overCom).Do();
  PostMessageW(FindWindowW(L"VantelPracticeTerminal", nullptr), WM_CLOSE, 0, 0);
  running.ExitCode();
  ASSERT_EQ(answers.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(driver::ToUtf8(answers[i]), driver::ToUtf8(expected[i]));
  }
}

TEST(TerminalAnswers, AreComparedForEveryOperation) {
  Direct direct;
  Work work(direct.library);
  for (const std::wstring& line : work.Do()) {
    // A key that is not there would compare nothing with nothing.
    EXPECT_FALSE(line.ends_with(L"=Empty")) << driver::ToUtf8(line);
  }
  // Bags are in every answer; the boxes are seen on the screen by a test of their own.
  const std::set<std::wstring> elsewhere = {
      L"ParameterBag.SetValue",
      L"ParameterBag.GetValue",
      L"ScriptErrorReporter.ReportLastError",
      L"ScriptErrorReporter.ShowMessage",
      L"ScriptErrorReporter.ShowError",
  };
  for (const Operation& operation : hostlib::AllOperations()) {
    EXPECT_NE(work.called().contains(NameOf(operation)), elsewhere.contains(NameOf(operation)))
        << driver::ToUtf8(NameOf(operation));
  }
}

}  // namespace
