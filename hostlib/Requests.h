#pragma once

#include "hostlib/ParameterBag.h"

// The request objects of the host transactions. Each is made for one procedure call.
namespace hostlib {

class ProfileStore : public Facade {
 public:
  explicit ProfileStore(Library& library)
      : Facade(library.Create(operations::profile_store::kClass)) {}
  /// "" when the file, the section or the key is missing.
  std::wstring ReadValue(std::wstring_view path, std::wstring_view section, std::wstring_view key) {
    return Call(operations::profile_store::kReadValue, path, section, key).Text();
  }
  void WriteValue(std::wstring_view path, std::wstring_view section, std::wstring_view key,
                  std::wstring_view value) {
    Call(operations::profile_store::kWriteValue, path, section, key, value);
  }
};

class UserSettingsStore : public Facade {
 public:
  explicit UserSettingsStore(Library& library)
      : Facade(library.Create(operations::user_settings_store::kClass)) {}
  /// "" when missing.
  std::wstring GetSetting(std::wstring_view application, std::wstring_view section,
                          std::wstring_view key) {
    return Call(operations::user_settings_store::kGetSetting, application, section, key, Missing{})
        .Text();
  }
  void SaveSetting(std::wstring_view application, std::wstring_view section, std::wstring_view key,
                   std::wstring_view value) {
    Call(operations::user_settings_store::kSaveSetting, application, section, key, value);
  }
};

class OfficeDisplayReader : public Facade {
 public:
  explicit OfficeDisplayReader(Library& library)
      : Facade(library.Create(operations::office_display_reader::kClass)) {}
  ParameterBag ReadResponse(std::wstring_view response) {
    return ParameterBag(Call(operations::office_display_reader::kReadResponse, response));
  }
};

class QueueRequest : public Facade {
 public:
  explicit QueueRequest(Library& library)
      : Facade(library.Create(operations::queue_request::kClass)) {}
  /// "" when nothing can be built.
  std::wstring BuildCommand(const ParameterBag& bag) {
    return Call(operations::queue_request::kBuildCommand, bag.object()).Text();
  }
  ParameterBag ReadResponse(std::wstring_view response) {
    return ParameterBag(
        Call(operations::queue_request::kReadResponse, response, Missing{}, Missing{}));
  }
};

class PnrReader : public Facade {
 public:
  explicit PnrReader(Library& library) : Facade(library.Create(operations::pnr_reader::kClass)) {}

  std::int16_t CountSegments() { return Count(operations::pnr_reader::kCountSegments); }
  std::int16_t CountFPElements() { return Count(operations::pnr_reader::kCountFPElements); }
  std::int16_t CountRMElements() { return Count(operations::pnr_reader::kCountRMElements); }
  std::int16_t CountTKElements() { return Count(operations::pnr_reader::kCountTKElements); }
  std::int16_t CountNameElements() { return Count(operations::pnr_reader::kCountNameElements); }
  std::int16_t CountOPElements() { return Count(operations::pnr_reader::kCountOPElements); }
  std::int16_t CountFSElements() { return Count(operations::pnr_reader::kCountFSElements); }
  std::int16_t CountOSIElements() { return Count(operations::pnr_reader::kCountOSIElements); }
  std::int16_t CountMCOElements() { return Count(operations::pnr_reader::kCountMCOElements); }
  std::wstring GetRecordLocator() { return Call(operations::pnr_reader::kGetRecordLocator).Text(); }

  // Each reads intKeyIndex (0-based) from the bag where an element is addressed and writes the
  // element's values into the same bag.
  void GetSegment(const ParameterBag& bag) { Get(operations::pnr_reader::kGetSegment, bag); }
  void GetNameElement(const ParameterBag& bag) {
    Get(operations::pnr_reader::kGetNameElement, bag);
  }
  void GetHeader(const ParameterBag& bag) { Get(operations::pnr_reader::kGetHeader, bag); }
  void GetRMElement(const ParameterBag& bag) { Get(operations::pnr_reader::kGetRMElement, bag); }
  void GetTKElement(const ParameterBag& bag) { Get(operations::pnr_reader::kGetTKElement, bag); }
  void GetOPElement(const ParameterBag& bag) { Get(operations::pnr_reader::kGetOPElement, bag); }

  /// Searches; the result bag holds the list of what was found.
  ParameterBag FindElements(const ParameterBag& bag) {
    return ParameterBag(Call(operations::pnr_reader::kFindElements, bag.object()));
  }
  /// The same operation as a typed read of one element: its values go into the same bag.
  void ReadElement(const ParameterBag& bag) { Get(operations::pnr_reader::kFindElements, bag); }

 private:
  std::int16_t Count(const Operation& operation) { return Call(operation).Integer(); }
  void Get(const Operation& operation, const ParameterBag& bag) { Call(operation, bag.object()); }
};

class TsmDisplayReader : public Facade {
 public:
  explicit TsmDisplayReader(Library& library)
      : Facade(library.Create(operations::tsm_display_reader::kClass)) {}
  std::wstring BuildTQMEntry(const ParameterBag& bag) {
    return Call(operations::tsm_display_reader::kBuildTQMEntry, bag.object()).Text();
  }
  ParameterBag ParseTQMResponse(std::wstring_view response, const ParameterBag& bag) {
    return ParameterBag(
        Call(operations::tsm_display_reader::kParseTQMResponse, response, bag.object()));
  }
};

class TstListRequest : public Facade {
 public:
  explicit TstListRequest(Library& library)
      : Facade(library.Create(operations::tst_list_request::kClass)) {}
  std::wstring BuildListCommand() {
    return Call(operations::tst_list_request::kBuildListCommand).Text();
  }
  std::wstring BuildPricingCommand() {
    return Call(operations::tst_list_request::kBuildPricingCommand).Text();
  }
  std::wstring BuildDisplayCommand(const ParameterBag& bag) {
    return Call(operations::tst_list_request::kBuildDisplayCommand, bag.object()).Text();
  }
  ParameterBag ReadResponse(std::wstring_view response) {
    return ParameterBag(Call(operations::tst_list_request::kReadResponse, response));
  }
};

/// Sends nothing: each operation stores its group of outputs, found in the response, in the bag.
class TstDetailRequest : public Facade {
 public:
  explicit TstDetailRequest(Library& library)
      : Facade(library.Create(operations::tst_detail_request::kClass)) {}
  void ReadFare(const ParameterBag& bag, std::wstring_view response) {
    Call(operations::tst_detail_request::kReadFare, bag.object(), response);
  }
  void ReadFareElements(const ParameterBag& bag, std::wstring_view response) {
    Call(operations::tst_detail_request::kReadFareElements, bag.object(), response);
  }
  void ReadGeneral(const ParameterBag& bag, std::wstring_view response) {
    Call(operations::tst_detail_request::kReadGeneral, bag.object(), response);
  }
  void ReadNames(const ParameterBag& bag, std::wstring_view response) {
    Call(operations::tst_detail_request::kReadNames, bag.object(), response);
  }
};

/// Each operation gives a piece of the update command.
class TstUpdateRequest : public Facade {
 public:
  explicit TstUpdateRequest(Library& library)
      : Facade(library.Create(operations::tst_update_request::kClass)) {}
  std::wstring BuildFareEntry(const ParameterBag& bag) {
    return Call(operations::tst_update_request::kBuildFareEntry, bag.object()).Text();
  }
  std::wstring BuildValidityEntry(const ParameterBag& bag) {
    return Call(operations::tst_update_request::kBuildValidityEntry, bag.object()).Text();
  }
  std::wstring BuildTSTEntry(const ParameterBag& bag) {
    return Call(operations::tst_update_request::kBuildTSTEntry, bag.object()).Text();
  }
};

class PnrElementChange : public Facade {
 public:
  explicit PnrElementChange(Library& library)
      : Facade(library.Create(operations::pnr_element_change::kClass)) {}
  /// The command text of the change; sends nothing.
  std::wstring Execute(const ParameterBag& bag) {
    return Call(operations::pnr_element_change::kExecute, bag.object()).Text();
  }
  ParameterBag ReadResponse(std::wstring_view response) {
    return ParameterBag(Call(operations::pnr_element_change::kReadResponse, response));
  }
};

/// One class a kind of element; `execute` is the kind's operation, e.g. kExecuteRM.
class PnrElementBuilder : public Facade {
 public:
  PnrElementBuilder(Library& library, const Operation& execute)
      : Facade(library.Create(execute.object)), execute_(execute) {}
  /// The finished element text; sends nothing.
  std::wstring Execute(const ParameterBag& bag) { return Call(execute_, bag.object()).Text(); }

 private:
  const Operation& execute_;
};

class PnrElementEntry : public Facade {
 public:
  explicit PnrElementEntry(Library& library)
      : Facade(library.Create(operations::pnr_element_entry::kClass)) {}
  ParameterBag ReadResponse(std::wstring_view response) {
    return ParameterBag(Call(operations::pnr_element_entry::kReadResponse, response));
  }
};

class RemarkDivider : public Facade {
 public:
  explicit RemarkDivider(Library& library)
      : Facade(library.Create(operations::remark_divider::kClass)) {}
  /// The pieces, each of which fits one RM element.
  TextArray Divide(std::wstring_view text) {
    return TextsOf(Call(operations::remark_divider::kDivide, text));
  }
};

class PrintRequest : public Facade {
 public:
  explicit PrintRequest(Library& library)
      : Facade(library.Create(operations::print_request::kClass)) {}
  std::wstring Execute(const ParameterBag& bag) {
    return Call(operations::print_request::kExecute, bag.object()).Text();
  }
  ParameterBag ReadResponse(std::wstring_view response) {
    return ParameterBag(Call(operations::print_request::kReadResponse, response));
  }
};

class BackOfficeRequest : public Facade {
 public:
  explicit BackOfficeRequest(Library& library)
      : Facade(library.Create(operations::back_office_request::kClass)) {}
  std::wstring Execute(const ParameterBag& bag) {
    return Call(operations::back_office_request::kExecute, bag.object()).Text();
  }
};

}  // namespace hostlib
