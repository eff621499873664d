// The numbers of the controls in the dialog templates: ID_ and the control's own name. 1 and 2 stay
// free, they are what the dialog manager sends for Enter and Esc.
#pragma once

#define ID_lblWorking 1001
#define ID_fraOptions 1002
#define ID_fraPrint 1003
#define ID_chkPrintPNR 1004
#define ID_fraTST 1005
#define ID_chkTSTNoUpdate 1006
#define ID_chkPanelMode 1007
#define ID_fraTK 1008
#define ID_chkTKNoUpdate 1009
#define ID_fraOP 1010
#define ID_chkOP 1011
#define ID_lblOPText 1012
#define ID_txtOPText 1013
#define ID_fraBOD 1014
#define ID_chkBOD 1015
#define ID_chkPasSegAsso 1016
#define ID_lblRMStar 1017
#define ID_txtRMBODInfo 1018
#define ID_fraDocumentInformation 1019
#define ID_lblFoP 1020
#define ID_txtFormOfPayment 1021
#define ID_lblOriginalDocumentNumber 1022
#define ID_txtAirlinePrefix 1023
#define ID_lblDash 1024
#define ID_txtMCONumber 1025
#define ID_lblCarrier 1026
#define ID_txtCarrier 1027
#define ID_lblCommission 1028
#define ID_txtCommission 1029
#define ID_lblCityCode 1030
#define ID_txtCityCode 1031
#define ID_LblIataNr 1032
#define ID_txtIATANumber 1033
#define ID_fraRemarks 1034
#define ID_lblMCOFee 1035
#define ID_txtMCOFee 1036
#define ID_lblPwct 1037
#define ID_txtPWCT 1038
#define ID_lblPTATotal 1039
#define ID_txtPTA 1040
#define ID_fraQueuingInformation 1041
#define ID_lblOfficeID 1042
#define ID_txtQueueingOfficeID 1043
#define ID_lblQueuecatnumber 1044
#define ID_txtQueueCat 1045
#define ID_cmdOK 1046
#define ID_cmdCancel 1047
#define ID_staStatusText 1048
#define ID_lblSelectMCO 1049
#define ID_lblSelectMCOHeading 1050
#define ID_lstMCO 1051
#define ID_btnOK 1052
#define ID_btnCancel 1053
#define ID_lblTSTListMessage 1054
#define ID_lstMCOElements 1055
#define ID_lblSelectTST 1056
#define ID_lblSelectHeading 1057
#define ID_lstTST 1058

// Hidden labels, which name fields that have none of their own.
#define ID_nameAirlinePrefix 1059
#define ID_nameMCONumber 1060
