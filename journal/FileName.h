#pragma once

#include <optional>

#include "journal/Storage.h"

namespace journal {

/// The name of one run's file: PTA_2007-02-20_133750_ABC123.txt. Without a locator its part is left
/// out. A `number` above 1 tells runs of the same second apart: PTA_2007-02-20_133750_ABC123-2.txt.
std::wstring FileName(const Moment& start, std::wstring_view locator, int number);

/// A locator as it may stand in a name: itself when it is nothing but A-Z, a-z and 0-9, up to eight
/// of them, else "".
std::wstring_view LocatorForName(std::wstring_view locator);

/// The day in a name of exactly that form; nothing for any other name.
std::optional<std::chrono::year_month_day> DayIn(std::wstring_view name);

/// Removes the journals of more than 30 days before today, and nothing else.
void RemoveOldFiles(Folder& folder, std::chrono::year_month_day today);

}  // namespace journal
