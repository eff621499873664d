#pragma once

#include "platform/FixedPlatform.h"

namespace support {

using platform::FixedPlatform;

}  // namespace support
