#include "journal/RunJournal.h"

#include "common/Numbers.h"
#include "journal/FileName.h"
#include "journal/Quietly.h"

namespace journal {
namespace {

/// A library before another one, which does everything; the hook sees each call.
class JournalLibrary : public hostlib::Library {
 public:
  JournalLibrary(hostlib::Library& inner, JournalHook& hook) : hooked_(inner, hook), hook_(hook) {}

  hostlib::ObjectPtr Create(std::wstring_view className) override {
    try {
      return hooked_.Create(className);
    } catch (const hostlib::LibraryError& error) {
      Quietly([&] { hook_.NotMade(className, error); });
      throw;
    }
  }

 private:
  hostlib::InterposedLibrary hooked_;
  JournalHook& hook_;
};

}  // namespace

/// What a run that is written down goes through.
class RunJournal::Book {
 public:
  Book(ui::Desktop& desktop, const Place& place)
      : clock_(place.clock),
        started_(clock_.Ticks()),
        writer_(place.folder, clock_),
        fields_(writer_.masking()),
        hook_(writer_, clock_, fields_),
        desktop_(desktop, writer_, clock_, fields_) {
    Quietly([&] { RemoveOldFiles(place.folder, clock_.Now().day); });
    Quietly([&] { writer_.Open(place.version); });
  }

  ui::Desktop& desktop() { return desktop_; }
  hostlib::Library& Before(hostlib::Library& library) { return library_.emplace(library, hook_); }

  /// The first time only.
  void Close(std::wstring_view words) noexcept {
    if (closed_) return;
    closed_ = true;
    Quietly([&] {
      hook_.Finish();
      writer_.Write(L"Last step: " + writer_.lastStep());
      writer_.Write(std::wstring(words) + L" after " + Seconds(clock_.Ticks() - started_));
      writer_.Secure();
      writer_.Finish();
    });
  }

 private:
  const Clock& clock_;
  std::chrono::milliseconds started_;
  Writer writer_;
  PaymentFields fields_;
  JournalHook hook_;
  std::optional<JournalLibrary> library_;
  JournalDesktop desktop_;
  bool closed_ = false;
};

std::unique_ptr<RunJournal::Book> RunJournal::Begin(ui::Desktop& desktop,
                                                    const Place& place) noexcept {
  std::unique_ptr<Book> book;
  Quietly([&] {
    if (IsWanted(place.platform)) book = std::make_unique<Book>(desktop, place);
  });
  return book;
}

RunJournal::RunJournal(ui::Desktop& desktop, const Place& place)
    : book_(Begin(desktop, place)), desktop_(book_ != nullptr ? book_->desktop() : desktop) {}

RunJournal::~RunJournal() {
  if (book_ != nullptr) book_->Close(L"Run broken off");
}

hostlib::Library& RunJournal::Before(hostlib::Library& library) {
  return book_ != nullptr ? book_->Before(library) : library;
}

int RunJournal::Ended(int exitCode) noexcept {
  Quietly([&] {
    if (book_ != nullptr) book_->Close(L"Run ended with exit code " + common::NumberText(exitCode));
  });
  return exitCode;
}

}  // namespace journal
