#pragma once

#include "hostlib/Object.h"
#include "platform/Platform.h"
#include "ui/controls/Form.h"

namespace app {

/// What Attach is given of the program, as objects of our own that the library may ask:
/// the progress form (slot 7 its caption, slot 8 its text) ...
hostlib::ObjectPtr MakeProgressFormObject(const ui::Form& form, const ui::Label& text);
/// ... and the application (slot 7 title, slot 8 folder, slot 9 instance number).
hostlib::ObjectPtr MakeApplicationObject(const platform::Platform& platform);

}  // namespace app
