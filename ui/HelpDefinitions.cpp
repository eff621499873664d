#include "ui/HelpDefinitions.h"

#include <algorithm>
#include <array>

namespace ui {
namespace {

constexpr std::array kHelp = {
    HelpDefinition{
        L"txtCityCode", L"Enter your three letter IATA city code, e.g. STO",
        L"Enter your three letter IATA city code, e.g. STO\r\rThe first time you start the PTA "
        L"script you have to fill in your 'City Code'.\rThis information is stored and "
        L"automatically displayed every time the script is used."},
    HelpDefinition{
        L"txtIATANumber", L"Enter your IATA Number, Ex. 80246878. NB! Include check digit !",
        L"Enter your IATA Number, Ex. 80246878. NB! Include check digit !\r\rThe first time you "
        L"start the PTA script you have to fill in your 'IATA Number'.\rThis information is stored "
        L"and automatically displayed every time the script is used."},
    HelpDefinition{
        L"txtCommission", L"Enter commission percentage, eg. 4 or amount, eg. 250A",
        L"Enter commission percentage, eg. 4 or amount, eg. 250A\r\rThe commission is "
        L"automatically collected from the FM-element in the PNR if existing, or you may add or "
        L"modify it manually."},
    HelpDefinition{L"txtPTA", L"Enter/modify the PTA Total Remark",
                   L"Enter/modify the PTA Total Remark\r\rThe script collects the information "
                   L"automatically from the TST(s) selected.\rYou may modify the text. "},
    HelpDefinition{
        L"txtPWCT", L"Enter PWCT Remark, Eg. SK  AT ARN A/P BEFORE DEPARTURE",
        L"Enter PWCT Remark, Eg. SK  AT ARN A/P BEFORE DEPARTURE\r\rIf the PWCT information is "
        L"present in the PNR, it is automatically added to this field.\rIf not, the program will "
        L"suggest a default text based on the departure airport and airline. "},
    HelpDefinition{L"txtQueueCat", L"Enter Queue Number/Category, eg. 80",
                   L"Enter Queue Number/Category, eg. 80\r\rDefault queue number is 80, but this "
                   L"may be modified. "},
    HelpDefinition{
        L"txtQueueingOfficeID",
        L"Enter the Office ID where the passenger will collect the ticket, Eg. CPHSK0001.",
        L"Enter the Office ID where the passenger will collect the ticket, Eg. CPHSK0001.\r\rThis "
        L"is the airline's Office ID where the ticket is to be collected.\rThe PNR is "
        L"automatically queued to this Office ID by the program.\rIf you do not want the program "
        L"to queue the PNR automatically, you may leave the information empty. "},
    HelpDefinition{
        L"txtOPText",
        L"Enter text to be added to the Option Element, eg. 'Check if ticket has been issued.'",
        L"Enter text to be added to the Option Element, eg. 'Check if ticket has been "
        L"issued.'\r\rThe text added to the OP-element may include a queue and/or category number, "
        L"eg. '80C2/Check if ticket OK.\rBy doing this, the PNR will be queued to a specific queue "
        L"and category.\rThe text will be stored and automatically displayed the next time you use "
        L"the program."},
    HelpDefinition{L"txtRMBODInfo", L"Enter information for backoffice (RM*). ", L""},
    HelpDefinition{
        L"chkOP", L"Mark if you want to add a Follow-Up(OP) Element to the PNR",
        L"Mark if you want to add a Follow-Up(OP) Element to the PNR\r\rIn order to do an "
        L"automatic follow up if a ticket has been issued, you may mark to add an OP-element to "
        L"the PNR.\rDate of the option element will be the date after the departure date."},
    HelpDefinition{L"chkPrintPNR", L"Mark if you want to print a copy of the PNR",
                   L"Mark if you want to print a copy of the PNR\r\rIf you want to print a copy of "
                   L"the PNR(WRA/RT) after all updates, please mark this check box. "},
    HelpDefinition{
        L"chkTSTNoUpdate", L"Mark if you do not want to update the TST(s)",
        L"Mark if you do not want to update the TST(s)\r\rSome airlines requires that the TST(s) "
        L"are not updated according to PNR-PTA procedure.\rPlease mark this check box if you do "
        L"not want to update the TST(s)."},
    // The status line speaks of the TST(s) for this one too.
    HelpDefinition{L"chkTKNoUpdate", L"Mark if you do not want to update the TST(s)",
                   L"Mark if you do not want to update the TK element"},
    HelpDefinition{L"chkPanelMode",
                   L"Mark if you want to return to Panel Mode after completing the PTA. ", L""},
    HelpDefinition{L"chkBOD", L"Mark if you want to send B.O.D. to backoffice (BT)", L""},
    HelpDefinition{
        L"chkPasSegAsso",
        L"Mark if you want to add Pasenger and Segment association to the BT transaction.", L""},
    HelpDefinition{L"cmdOK", L"Press Enter to perform updates", L""},
    HelpDefinition{L"cmdCancel", L"Press Enter to exit without any updates", L""},
};

}  // namespace

const HelpDefinition* FindHelp(std::wstring_view control) {
  const auto found = std::find_if(kHelp.begin(), kHelp.end(), [&](const HelpDefinition& help) {
    return help.control == control;
  });
  return found == kHelp.end() ? nullptr : &*found;
}

}  // namespace ui
