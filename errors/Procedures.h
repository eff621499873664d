#pragma once

#include <string_view>

#include "common/ConstDefintions.h"

// Every report of the program in one table: its words, its number, its style, and what becomes of
// the run.
namespace errors {

/// How a failure inside a procedure is shown.
enum class Form {
  kShowError,          ///< the procedure's own text, with its style
  kShowMessage,        ///< the own text in the library's default style; the library's last error
                       ///< instead when the library raised the failure
  kShowErrorOrLast,    ///< the same, with the own text in the procedure's style
  kReportLastOrError,  ///< the library reports its last error when it has one, else the own text
};

/// What becomes of the run after the report.
enum class After {
  kGoesOn,
  kStopsRun,  ///< the step completes; the run ends before the next one that asks the host
  kEndsRun,   ///< the run ends at once, through the end procedure
};

struct Procedure {
  std::wstring_view text;
  int number;  ///< added to the error base
  int style = common::kCritical;
  Form form = Form::kShowError;
  After after = After::kGoesOn;
  /// " Description=" and the failure's own words follow the text.
  bool describes = false;
};

namespace procedures {

using common::kCritical;
using common::kExclamation;

// The run.
inline constexpr Procedure kMain{L"Error initiating script!", 51, kCritical, Form::kShowMessage,
                                 After::kEndsRun};
inline constexpr Procedure kUpdateRun{L"Error when performing the updates!", 52, kCritical,
                                      Form::kShowErrorOrLast, After::kEndsRun};
inline constexpr Procedure kConnect{
    L"Failed to connect to Vantel session.\r\rVerify that there is a Vantel session started.", 99};
inline constexpr Procedure kSendQETrans{L"Error when sending the QE transaction.", 80};

// Settings and the agent's office.
inline constexpr Procedure kIniFileMissing{L"The ini file does not exist! \rContact Help Desk.", 10,
                                           kExclamation};
inline constexpr Procedure kLocateIniFile{L"Error when getting the ini file!", 10};
inline constexpr Procedure kReadSettings{L"Error when getting the settings!", 29};
inline constexpr Procedure kWriteSettings{L"Error when updating the settings!", 28};
inline constexpr Procedure kFindOffice{L"Error when searching for INI-file parameters", 40};
inline constexpr Procedure kSendPV{L"Error when sending the PV transaction.", 110};

// Money and dates.
inline constexpr Procedure kTotalFare{L"Error when calculating the total fare!", 20, kCritical,
                                      Form::kShowError, After::kStopsRun};
inline constexpr Procedure kAddTSTValues{L"Error adding TST values!", 21, kCritical,
                                         Form::kShowError, After::kStopsRun};
inline constexpr Procedure kPTATotalRemark{L"Error when calculating the PTA Total Remarks!", 23,
                                           kCritical, Form::kShowError, After::kStopsRun};
inline constexpr Procedure kMultiplyTSTValues{L"Error multiply values!", 25, kCritical,
                                              Form::kShowError, After::kStopsRun};
/// Shared, words and number, by the reading and the multiplying of an amount.
inline constexpr Procedure kMultiplyAmount{L"Error when multiplying values!", 26, kCritical,
                                           Form::kShowError, After::kStopsRun};
inline constexpr Procedure kAddDay{L"Error adding day!", 27};

// The PNR.
inline constexpr Procedure kRetrievePNR{
    L"Unable to retrieve the PNR.\rMake sure there is an active PNR.\rThe program will terminate.",
    36, kExclamation, Form::kReportLastOrError, After::kStopsRun};
inline constexpr Procedure kPNRInformation{L"Error when getting the PNR information!", 30,
                                           kCritical, Form::kReportLastOrError, After::kStopsRun};
inline constexpr Procedure kRecordLocatorMissing{
    L"PNR Record Locator missing. \rPlease do End Transaction and restart the script.", 30,
    kExclamation, Form::kShowError, After::kStopsRun};
/// The list of the missing elements follows the text.
inline constexpr Procedure kMandatoryMissing{
    L"Mandatory element(s) missing!\rPlease add elements and restart the script."
    L"\r\rMissing elements are: ",
    37, kExclamation, Form::kShowError, After::kStopsRun};
inline constexpr Procedure kTKMissing{L"TK-element missing !\rPlease add and restart the script.",
                                      30, kExclamation, Form::kShowError, After::kStopsRun};
inline constexpr Procedure kNames{L"Error when getting the name info!", 31, kCritical,
                                  Form::kReportLastOrError, After::kStopsRun};
inline constexpr Procedure kPWCT{L"Error when getting the PWCT info!", 32, kCritical,
                                 Form::kReportLastOrError};
inline constexpr Procedure kFareElement{L"Error when getting the fare info!", 33, kCritical,
                                        Form::kReportLastOrError};
inline constexpr Procedure kOption{L"Error when getting the Option info!", 34, kCritical,
                                   Form::kReportLastOrError};
inline constexpr Procedure kOSI{L"Error when getting the OSI info!", 112, kCritical,
                                Form::kReportLastOrError};
inline constexpr Procedure kMCOInfo{L"Error when getting the MCO info!", 90, kCritical,
                                    Form::kReportLastOrError, After::kStopsRun};
inline constexpr Procedure kAirlineNotValid{
    L"Airline is not valid for MCO. The script will terminate.", 38, kExclamation, Form::kShowError,
    After::kStopsRun};

// The MCO.
inline constexpr Procedure kTQM{L"Error sending TQM Transaction!",
                                110,
                                kCritical,
                                Form::kReportLastOrError,
                                After::kGoesOn,
                                true};
/// A blank and the host's answer follow the texts of these two.
inline constexpr Procedure kTQMRefused{L"Error sending TQM Transaction!", 110};
inline constexpr Procedure kNoMCOFee{L"Error MCOFee was not found in the MCO", 110};
inline constexpr Procedure kSelectMCO{L"Error Error in list of TSM's!", 110, kCritical,
                                      Form::kReportLastOrError};
inline constexpr Procedure kCountMCOElements{L"Error when getting the number of MCO elements!", 36,
                                             kCritical, Form::kReportLastOrError, After::kStopsRun};

// The TSTs.
inline constexpr Procedure kReadTSTList{L"Error when verifying the TQT Response!", 41, kCritical,
                                        Form::kShowError, After::kStopsRun};
inline constexpr Procedure kNoActiveTST{
    L"The PNR contains no active TST.\rMake sure there is a TST record available and restart the "
    L"script.",
    41, kExclamation, Form::kShowError, After::kStopsRun};
inline constexpr Procedure kSendTQT{L"Error sending TQT Transaction!", 41};
inline constexpr Procedure kSendTQTP{L"Error when sending the TST from the TQTP transaction!", 41};
inline constexpr Procedure kSelectTST{L"Error when selecting TST from the TST list!", 41, kCritical,
                                      Form::kShowError, After::kStopsRun};
inline constexpr Procedure kReadTSTDetail{L"Error when retrieving data from the TST record!", 41,
                                          kCritical, Form::kShowError, After::kStopsRun};
inline constexpr Procedure kReadCurrentTST{L"Error when reading the current TQT Response!", 41,
                                           kCritical, Form::kShowError, After::kStopsRun};
inline constexpr Procedure kUpdateTST{L"Error when updating the TST Record!", 40};

// The dialog.
inline constexpr Procedure kFormInit{L"Error initializing the form!", 53};
inline constexpr Procedure kFormDisplay{L"Error displaying the PTA form!", 54};
inline constexpr Procedure kOkClicked{L"Invalid fields!", 55};
inline constexpr Procedure kVerifyWindowFields{L"Error when verifying the Window Fields!", 56};

// Changing elements. A refused change shows the same text and number, in the exclamation style.
inline constexpr Procedure kUpdatePNR{L"Error when updating the PNR!", 60, kCritical,
                                      Form::kShowError, After::kEndsRun};
inline constexpr Procedure kUpdateTK{L"Error when updating the Ticketing Element!", 61, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kUpdateFP{L"Error when updating the FP Element!", 62, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kUpdateFV{L"Error when updating the FV Element!", 63, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kUpdateRMPWCT{L"Error when updating the RM PWCT Element!", 64, kCritical,
                                         Form::kShowError, After::kEndsRun};
inline constexpr Procedure kUpdateFM{L"Error when updating the FM Element!", 65, kCritical,
                                     Form::kShowError, After::kEndsRun};

// Creating elements.
inline constexpr Procedure kEnterPNRElements{L"Error when entering the PNR elements!", 70,
                                             kCritical, Form::kShowError, After::kEndsRun};
inline constexpr Procedure kCreateFO{L"Error when creating the FO element!", 71, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kCreateFV{L"Error when creating the FV element!", 72, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kCreateFP{L"Error when creating the FP element!", 73, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kCreateFM{L"Error when creating the FM element!", 74, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kCreateRM{L"Error when creating a RM element!", 75, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kCreateOP{L"Error when creating the OP element!", 76, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kDivideRM{L"Error when deviding an RM string!", 77, kCritical,
                                     Form::kShowError, After::kEndsRun};
inline constexpr Procedure kCreateRMStar{L"Error when creating the RM* Element!", 78};

// Closing commands.
inline constexpr Procedure kPrintPNR{L"Error when sending the print PNR command!", 81};
inline constexpr Procedure kSendBT{L"Error when sending the BT command!", 82};

}  // namespace procedures
}  // namespace errors
