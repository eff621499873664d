#pragma once

/// What the practice terminal's window says of itself. docs/practice-guide.md has all of it.
namespace practice::terminal::texts {

inline constexpr wchar_t kTitle[] =
    L"Vantel terminal - PRACTICE - nothing here reaches a real host";
inline constexpr wchar_t kBoxTitle[] = L"Vantel practice terminal";

// The menus.
inline constexpr wchar_t kBooking[] = L"&Booking";
inline constexpr wchar_t kHost[] = L"&Host";
inline constexpr wchar_t kRefuseNext[] = L"&Refuse the next entry";
inline constexpr wchar_t kRefuseLater[] = L"Refuse a later &entry, counted from now";
inline constexpr wchar_t kGarbleNext[] = L"&Garble the next answer";
inline constexpr wchar_t kLoseEntry[] = L"&Lose the session before the next entry";
inline constexpr wchar_t kLoseAnswer[] = L"Lose the session &after the next entry";
inline constexpr wchar_t kSlow[] = L"Be &slow";
inline constexpr wchar_t kIssueDocument[] = L"Issue the missing &document (FA)";
inline constexpr wchar_t kBehaveWell[] = L"&Behave well again";
inline constexpr wchar_t kShow[] = L"&Show";
inline constexpr wchar_t kShowPrinted[] = L"&Printed copies";
inline constexpr wchar_t kShowBackOffice[] = L"Sent to &back office (B.O.D.)";
inline constexpr wchar_t kShowQueues[] = L"&Queues";
inline constexpr wchar_t kTerminal[] = L"&Terminal";
inline constexpr wchar_t kOpenFile[] = L"&Open a booking of your own...";
inline constexpr wchar_t kCopyTranscript[] = L"&Copy the transcript";
inline constexpr wchar_t kEnd[] = L"E&nd";
inline constexpr wchar_t kHelp[] = L"Hel&p";
inline constexpr wchar_t kAbout[] = L"&About the practice terminal...";

// The transcript.
inline constexpr wchar_t kBookingOpened[] = L"Practice booking ";
inline constexpr wchar_t kPrinted[] = L"Printed copies";
inline constexpr wchar_t kBackOffice[] = L"Sent to back office";
inline constexpr wchar_t kQueues[] = L"Queues";
inline constexpr wchar_t kNoAnswer[] = L"(no answer: the session to the host is lost)";
inline constexpr wchar_t kReason[] = L"THE TRAINER WANTS IT SO";

// The status line.
inline constexpr wchar_t kStatusBooking[] = L"PRACTICE - no real host   |   Booking: ";
inline constexpr wchar_t kStatusNoBooking[] = L"none";
inline constexpr wchar_t kStatusOfAProgram[] = L"of a program";
inline constexpr wchar_t kStatusHost[] = L"   |   Host: ";
inline constexpr wchar_t kStatusObjects[] = L"   |   Objects in use: ";
inline constexpr wchar_t kWell[] = L"well";
inline constexpr wchar_t kSessionLost[] = L"session lost";
inline constexpr wchar_t kRefusesNext[] = L"refuses the next entry";
inline constexpr wchar_t kRefusesLater[] = L"refuses entry ";
inline constexpr wchar_t kFromNow[] = L" from now";
inline constexpr wchar_t kGarblesNext[] = L"garbles the next answer";
inline constexpr wchar_t kIsSlow[] = L"slow";

// Its boxes.
inline constexpr wchar_t kNoBooking[] = L"There is no practice booking ";
inline constexpr wchar_t kNothingMissing[] = L"The PNR has no MCO without a document.";
inline constexpr wchar_t kNoWindow[] = L"The terminal's window can not be made";
inline constexpr wchar_t kNoMemory[] = L"Out of memory.";
inline constexpr wchar_t kFileKind[] = L"Practice bookings (*.pnr)";

// About.
inline constexpr wchar_t kAboutTitle[] = L"About the practice terminal";
inline constexpr wchar_t kAboutName[] = L"Vantel practice terminal ";
inline constexpr wchar_t kAboutPractice[] = L"For practice only: there is no real host behind it.";
inline constexpr wchar_t kCopyDiagnostics[] = L"&Copy diagnostics";
inline constexpr wchar_t kCopied[] = L"Copied";

}  // namespace practice::terminal::texts
