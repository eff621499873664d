#include "journal/RunJournal.h"

#include "common/Numbers.h"
#include "journal/FileName.h"
#include "journal/Quietly.h"

namespace journal {

/// What a run that is written down goes through.
class RunJournal::Book : public hostlib::Library {
 public:
  Book(hostlib::Library& library, ui::Desktop& desktop, const Place& place)
      : clock_(place.clock),
        started_(clock_.Ticks()),
        writer_(place.folder, clock_),
        fields_(writer_.masking()),
        hook_(writer_, clock_, fields_),
        hooked_(library, hook_),
        desktop_(desktop, writer_, clock_, fields_) {
    Quietly([&] { RemoveOldFiles(place.folder, clock_.Now().day); });
    Quietly([&] { writer_.Open(place.version); });
  }

  hostlib::ObjectPtr Create(std::wstring_view className) override {
    try {
      return hooked_.Create(className);
    } catch (const hostlib::LibraryError& error) {
      Quietly([&] { hook_.NotMade(className, error); });
      throw;
    }
  }
  ui::Desktop& desktop() { return desktop_; }

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
  hostlib::InterposedLibrary hooked_;
  JournalDesktop desktop_;
  bool closed_ = false;
};

std::unique_ptr<RunJournal::Book> RunJournal::Begin(hostlib::Library& library, ui::Desktop& desktop,
                                                    const Place& place) noexcept {
  std::unique_ptr<Book> book;
  Quietly([&] {
    if (IsWanted(place.platform)) book = std::make_unique<Book>(library, desktop, place);
  });
  return book;
}

RunJournal::RunJournal(hostlib::Library& library, ui::Desktop& desktop, const Place& place)
    : book_(Begin(library, desktop, place)),
      library_(book_ != nullptr ? *book_ : library),
      desktop_(book_ != nullptr ? book_->desktop() : desktop) {}

RunJournal::~RunJournal() {
  if (book_ != nullptr) book_->Close(L"Run broken off");
}

int RunJournal::Ended(int exitCode) noexcept {
  Quietly([&] {
    if (book_ != nullptr) book_->Close(L"Run ended with exit code " + common::NumberText(exitCode));
  });
  return exitCode;
}

}  // namespace journal
