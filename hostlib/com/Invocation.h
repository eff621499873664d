#pragma once

#include <vector>

#include "hostlib/com/InterfaceTable.h"
#include "hostlib/com/Owners.h"

namespace hostlib::com {

/// The one way by which a member is called: one round trip, every failure a LibraryError.
/// `arguments` in their written order.
Variant InvokeMember(IDispatch& object, const Member& member, std::vector<Variant> arguments);

}  // namespace hostlib::com
