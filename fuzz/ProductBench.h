#pragma once

#include "errors/ErrorHandler.h"
#include "hostlib/Requests.h"
#include "hostlib/ScriptGlobal.h"
#include "hostlib/TerminalSession.h"
#include "practice/library/PracticeLibrary.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FixedPlatform.h"
#include "tests/support/RoomBench.h"

namespace fuzz {

/// The practice library over a practice host, and what rooms need besides.
struct ProductBench {
  struct NoProfiles : practice::Profiles {
    std::wstring Read(std::wstring_view, std::wstring_view, std::wstring_view) override {
      return {};
    }
    bool Write(std::wstring_view, std::wstring_view, std::wstring_view,
               std::wstring_view) override {
      return true;
    }
  };

  ProductBench() {
    session.Connect(library);
    reporter.Create(library);
  }

  hostlib::ParameterBag Bag() { return hostlib::ParameterBag(library); }
  hostlib::ParameterBag Index(int index) {
    hostlib::ParameterBag bag(library);
    bag.SetValue(L"intKeyIndex", static_cast<std::int16_t>(index));
    return bag;
  }
  hostlib::ParameterBag Typed(int index, std::wstring_view type) {
    hostlib::ParameterBag bag = Index(index);
    bag.SetValue(L"strKeyPNRElement", type);
    return bag;
  }

  practice::Host host;
  support::FixedPlatform platform;
  NoProfiles profiles;
  practice::UserValuesInMemory userValues;
  support::FakeDesktop desktop;
  practice::PracticeLibrary library{{host, platform, profiles, userValues, desktop}};
  hostlib::ScriptGlobal global{library};
  hostlib::ScriptErrorReporter reporter;
  hostlib::TerminalSession session;
  support::ThrowingRunEnd runEnd;
  errors::StopFlag stop;
  errors::ErrorHandler errors{reporter, desktop, runEnd, stop};
};

}  // namespace fuzz
