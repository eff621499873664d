#pragma once

namespace ui {

/// How often this program has asked Windows to beep. The test program brings its own import of
/// MessageBeep, which counts and passes on, so what is heard is what really leaves the program.
int HeardBeeps();

}  // namespace ui
