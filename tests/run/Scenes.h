#pragma once

#include <string>
#include <vector>

#include "practice/rehearsal/Rehearsal.h"

namespace run {

using Lines = std::vector<std::wstring>;

/// A file of the checkout, as text without carriage returns.
std::wstring ReadProjectFile(const std::string& path);

/// The ordinary booking with its INI file and its agent.
practice::RehearsalScene OrdinaryScene();

/// A booking of practice/pnrs by its name, with the agent beside it, if any, and with the INI file
/// beside it, else the ordinary one.
practice::RehearsalScene SceneOf(const std::string& booking);
/// The names of all bookings in practice/pnrs, sorted.
std::vector<std::string> BookingNames();
/// There is a written agent beside the booking.
bool HasAgent(const std::string& booking);

/// The same with a piece of a text replaced; the piece must be there.
void Change(std::wstring& text, std::wstring_view from, std::wstring_view to);
/// One INI key of the ordinary office, replaced or added.
void SetIni(practice::RehearsalScene& scene, const std::wstring& key, const std::wstring& value);

/// Rehearses and fails the test when run and agent disagree, or objects are left behind.
practice::RehearsalOutcome RehearseInAgreement(const practice::RehearsalScene& scene);
/// The same for a booking with what lies beside it.
practice::RehearsalOutcome RehearseBooking(const std::string& booking);

/// The calls of one object's operation, e.g. "TerminalSession.1.33".
Lines CallsOf(const practice::RehearsalOutcome& outcome, std::wstring_view operation);
bool Holds(const Lines& lines, std::wstring_view line);
/// The boxes that the agent saw, with their answers.
Lines BoxesIn(const practice::RehearsalOutcome& outcome);
/// The form of that name has been on the screen.
bool HasShown(const practice::RehearsalOutcome& outcome, std::wstring_view form);
/// The lines of the list that the agent found; "*" in front of a selected one, else a blank.
Lines ListIn(const practice::RehearsalOutcome& outcome);
/// What the run sends while it reads, with one MCO and one fare and no OSI for SK.
Lines ReadingEntries();
/// The entries of a run that got as far as writing: up to its first change, and from there on.
Lines EntriesBeforeWriting(const practice::RehearsalOutcome& outcome);
Lines EntriesOfWriting(const practice::RehearsalOutcome& outcome);
/// The entries that bring new elements, cut at their ";".
Lines NewElements(const practice::RehearsalOutcome& outcome);

/// The lines of the PNR's display that the run brought, without their numbers, in order.
Lines LinesAdded(const practice::RehearsalOutcome& outcome);
/// The lines that it replaced or removed.
Lines LinesGone(const practice::RehearsalOutcome& outcome);

}  // namespace run
