#pragma once

#include "practice/library/Workshop.h"

// One maker an object of the library.
namespace practice::objects {

hostlib::ObjectPtr MakeTerminalSession(Workshop& workshop);
hostlib::ObjectPtr MakeErrorReporter(Workshop& workshop);
hostlib::ObjectPtr MakeProfileStore(Workshop& workshop);
hostlib::ObjectPtr MakeUserSettingsStore(Workshop& workshop);
hostlib::ObjectPtr MakeOfficeDisplayReader(Workshop& workshop);
hostlib::ObjectPtr MakeQueueRequest(Workshop& workshop);
hostlib::ObjectPtr MakePnrReader(Workshop& workshop);
hostlib::ObjectPtr MakeTsmDisplayReader(Workshop& workshop);
hostlib::ObjectPtr MakeTstListRequest(Workshop& workshop);
hostlib::ObjectPtr MakeTstDetailRequest(Workshop& workshop);
hostlib::ObjectPtr MakeTstUpdateRequest(Workshop& workshop);
hostlib::ObjectPtr MakePnrElementChange(Workshop& workshop);
hostlib::ObjectPtr MakePnrElementEntry(Workshop& workshop);
hostlib::ObjectPtr MakeBuilderFO(Workshop& workshop);
hostlib::ObjectPtr MakeBuilderFV(Workshop& workshop);
hostlib::ObjectPtr MakeBuilderFP(Workshop& workshop);
hostlib::ObjectPtr MakeBuilderFM(Workshop& workshop);
hostlib::ObjectPtr MakeBuilderRM(Workshop& workshop);
hostlib::ObjectPtr MakeBuilderOP(Workshop& workshop);
hostlib::ObjectPtr MakeRemarkDivider(Workshop& workshop);
hostlib::ObjectPtr MakePrintRequest(Workshop& workshop);
hostlib::ObjectPtr MakeBackOfficeRequest(Workshop& workshop);

}  // namespace practice::objects
